#include "layerrecords.h"

#include "CmColor.h"
#include "drawing.h"
#include "layerkeys.h"
#include "vnstrings.h"

#include <QCollator>

#include <algorithm>

namespace layerrecords {

namespace {

namespace key = vnsi::layerkey;
using drawing::LayerProperties;
using vnsi::IElementValueBase;
using vnsi::VnJsonPtr;

/// The command's own key, which dialogs carry along.
constexpr char kId[] = "LayerId";

struct FlagRow
{
    const char* key;
    bool LayerProperties::*member;
};

constexpr FlagRow kFlags[] = {
    {key::kOff, &LayerProperties::off},
    {key::kFrozen, &LayerProperties::frozen},
    {key::kLock, &LayerProperties::locked},
    {key::kPrint, &LayerProperties::plotted},
    {key::kVPortFrozen, &LayerProperties::frozenInNewViewports},
};

struct NumberRow
{
    const char* key;
    int LayerProperties::*member;
};

constexpr NumberRow kNumbers[] = {
    {key::kLineWidth, &LayerProperties::lineweight},
    {key::kTransparency, &LayerProperties::transparency},
};

struct TextRow
{
    const char* key;
    QString LayerProperties::*member;
};

constexpr TextRow kTexts[] = {
    {key::kName, &LayerProperties::name},
    {key::kLinetype, &LayerProperties::linetype},
    {key::kDescription, &LayerProperties::description},
};

void writeColor(IElementValueBase& record, const LayerProperties& properties)
{
    const bool isTrue = properties.trueColor.has_value();
    record.SetDataL(
        key::kColorMethod, isTrue ? OdCmEntityColor::kByColor : OdCmEntityColor::kByACI);
    record.SetDataL(key::kColorValue,
        isTrue ? swapRedAndBlue(*properties.trueColor) : OdInt64{properties.colorIndex});
}

void readColor(const IElementValueBase& record, LayerProperties& properties)
{
    const OdInt64 value = record.GetDataL(key::kColorValue);
    if (record.GetDataL(key::kColorMethod) == OdCmEntityColor::kByACI) {
        properties.colorIndex = static_cast<OdInt16>(value);
        properties.trueColor.reset();
    } else {
        properties.trueColor = swapRedAndBlue(static_cast<quint32>(value));
    }
}

void write(IElementValueBase& record, const drawing::Layer& layer, bool current)
{
    const LayerProperties& properties = layer.properties;
    for (const TextRow& row : kTexts)
        record.SetDataSW(row.key, vnsi::vnutQStringToOdString(properties.*row.member));
    record.SetDataI(key::kStatus, current ? vnsi::kLayerCurrent : vnsi::kLayerOrdinary);
    for (const FlagRow& row : kFlags)
        record.SetDataB(row.key, properties.*row.member);
    for (const NumberRow& row : kNumbers)
        record.SetDataI(row.key, properties.*row.member);
    writeColor(record, properties);
    record.SetDataSW(key::kPlotStyle, vnsi::vnutQStringToOdString(properties.plotStyle));
    record.SetDataB(key::kDepend, layer.dependsOnReference);
    record.SetDataB(key::kUsed, layer.used());
    record.SetDataB(key::kModified, false);
    record.SetDataI(kId, static_cast<int>(layer.id));
}

std::vector<const drawing::Layer*> sortedByName(const std::vector<drawing::Layer>& layers)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, const drawing::Layer*>> keyed;
    keyed.reserve(layers.size());
    for (const drawing::Layer& layer : layers)
        keyed.emplace_back(collator.sortKey(layer.properties.name), &layer);
    std::stable_sort(keyed.begin(), keyed.end(),
        [](const auto& a, const auto& b) { return a.first.compare(b.first) < 0; });

    std::vector<const drawing::Layer*> sorted;
    sorted.reserve(keyed.size());
    for (const auto& entry : keyed)
        sorted.push_back(entry.second);
    return sorted;
}

} // namespace

quint32 swapRedAndBlue(quint32 color)
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

VnJsonPtr make(const drawing::Layer& layer, bool current)
{
    VnJsonPtr record = vnsi::ElementValue::createObject(20);
    write(*record, layer, current);
    record->SetDataB(key::kSelected, false);
    return record;
}

void refresh(const VnJsonPtr& record, const drawing::Layer& layer, bool current)
{
    write(*record, layer, current);
}

VnJsonPtr makeList(const drawing::Drawing& drawing)
{
    const auto& layers = drawing.layers();
    VnJsonPtr list = vnsi::ElementValue::createArray(static_cast<int>(layers.size()));
    for (const drawing::Layer* layer : sortedByName(layers))
        list->Append(make(*layer, layer->id == drawing.currentLayer()));
    return list;
}

drawing::LayerId idOf(const VnJsonPtr& record)
{
    return drawing::LayerId{record->GetDataI(kId, static_cast<int>(drawing::LayerId::None))};
}

void setId(const VnJsonPtr& record, drawing::LayerId id)
{
    record->SetDataI(kId, static_cast<int>(id));
}

QString nameOf(const VnJsonPtr& record)
{
    return vnsi::vnutOdStringToQString(record->GetDataSW(key::kName));
}

bool isModified(const VnJsonPtr& record)
{
    return record->GetDataB(key::kModified) || record->GetDataI(key::kModified) == 1;
}

LayerProperties properties(const VnJsonPtr& record, const LayerProperties& base)
{
    LayerProperties read = base;
    for (const TextRow& row : kTexts)
        read.*row.member = vnsi::vnutOdStringToQString(record->GetDataSW(row.key));
    for (const FlagRow& row : kFlags)
        read.*row.member = record->GetDataB(row.key);
    for (const NumberRow& row : kNumbers)
        read.*row.member = record->GetDataI(row.key);
    readColor(*record, read);
    return read;
}

} // namespace layerrecords
