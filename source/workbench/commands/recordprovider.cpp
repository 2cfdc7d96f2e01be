#include "recordprovider.h"
#include "hostextras.h"

#include "drawing.h"
#include "nameorder.h"
#include "vnstrings.h"

#include <algorithm>
#include <cstring>

namespace layerrecords {

namespace key = vnsi::layerkey;
using drawing::Layer;
using drawing::LayerProperties;
using vnsi::LayerColor;
using vnsi::LayerRecord;
using vnsi::VnJsonPtr;

/// A member of a record: how it is written and, if dialogs can change it, how it is read back.
struct Field
{
    const char* key;
    void (*write)(LayerRecord& record, const char* key, const Layer& layer, bool current);
    void (*read)(const LayerRecord& record, const char* key, LayerProperties& properties) = nullptr;
};

namespace {

/// The workbench's own key, which dialogs keep in the record.
constexpr char kId[] = "LayerId";

void put(LayerRecord& record, const char* key, bool value)
{
    record.setFlag(key, value);
}

void put(LayerRecord& record, const char* key, int value)
{
    record.setNumber(key, value);
}

void put(LayerRecord& record, const char* key, const QString& value)
{
    record.setText(key, vnsi::vnutQStringToOdString(value));
}

void get(const LayerRecord& record, const char* key, bool& value)
{
    value = record.flag(key);
}

void get(const LayerRecord& record, const char* key, int& value)
{
    value = record.number(key);
}

void get(const LayerRecord& record, const char* key, QString& value)
{
    value = vnsi::vnutOdStringToQString(record.text(key));
}

template <auto Member>
void writeProperty(LayerRecord& record, const char* key, const Layer& layer, bool)
{
    put(record, key, layer.properties.*Member);
}

template <auto Member>
void readProperty(const LayerRecord& record, const char* key, LayerProperties& properties)
{
    get(record, key, properties.*Member);
}

template <auto Member>
constexpr Field property(const char* key)
{
    return {key, &writeProperty<Member>, &readProperty<Member>};
}

void writeNo(LayerRecord& record, const char* key, const Layer&, bool)
{
    record.setFlag(key, false);
}

void writeStatus(LayerRecord& record, const char*, const Layer&, bool current)
{
    record.setStatus(current ? vnsi::kLayerCurrent : vnsi::kLayerOrdinary);
}

void writeColor(LayerRecord& record, const char*, const Layer& layer, bool)
{
    const LayerProperties& properties = layer.properties;
    record.setColor(properties.trueColor ? LayerColor::ofRgb(*properties.trueColor)
                                         : LayerColor::ofIndex(properties.colorIndex));
}

void readColor(const LayerRecord& record, const char*, LayerProperties& properties)
{
    const LayerColor color = record.color();
    properties.trueColor.reset();
    if (color.isIndex())
        properties.colorIndex = color.index();
    else
        properties.trueColor = color.rgb();
}

void writeDepend(LayerRecord& record, const char* key, const Layer& layer, bool)
{
    record.setFlag(key, layer.dependsOnReference);
}

void writeUsed(LayerRecord& record, const char* key, const Layer& layer, bool)
{
    record.setFlag(key, layer.used());
}

constexpr Field kFields[] = {
    property<&LayerProperties::name>(key::kName),
    {key::kStatus, writeStatus},
    property<&LayerProperties::off>(key::kOff),
    property<&LayerProperties::frozen>(key::kFrozen),
    property<&LayerProperties::locked>(key::kLock),
    {key::kColor, writeColor, readColor},
    property<&LayerProperties::linetype>(key::kLinetype),
    property<&LayerProperties::lineweight>(key::kLineWidth),
    property<&LayerProperties::transparency>(key::kTransparency),
    // Only shown; no layer dialog changes it.
    {key::kPlotStyle, &writeProperty<&LayerProperties::plotStyle>},
    property<&LayerProperties::plotted>(key::kPrint),
    property<&LayerProperties::frozenInNewViewports>(key::kVPortFrozen),
    property<&LayerProperties::description>(key::kDescription),
    {key::kDepend, writeDepend},
    {key::kUsed, writeUsed},
    {key::kSelected, writeNo},
    {key::kModified, writeNo},
};

std::vector<const Layer*> sortedByName(const std::vector<Layer>& layers, const Filter& passes)
{
    std::vector<const Layer*> sorted;
    sorted.reserve(layers.size());
    for (const Layer& layer : layers) {
        if (!passes || passes(layer))
            sorted.push_back(&layer);
    }
    sortByName(sorted, [](const Layer* layer) { return layer->properties.name; });
    return sorted;
}

} // namespace

Provider::Provider(std::initializer_list<const char*> keys)
{
    for (const char* wanted : keys) {
        const auto* const field = std::find_if(std::begin(kFields), std::end(kFields),
            [wanted](const Field& candidate) { return std::strcmp(candidate.key, wanted) == 0; });
        Q_ASSERT_X(field != std::end(kFields), "layerrecords::Provider", wanted);
        if (field != std::end(kFields))
            m_fields.push_back(field);
    }
}

const Provider& Provider::full()
{
    static const Provider all = [] {
        Provider provider({});
        for (const Field& field : kFields)
            provider.m_fields.push_back(&field);
        return provider;
    }();
    return all;
}

VnJsonPtr Provider::make(const Layer& layer, bool current) const
{
    VnJsonPtr node = vnsi::ElementValue::createObject(static_cast<int>(m_fields.size()) + 1);
    LayerRecord record(node);
    write(record, layer, current);
    return node;
}

void Provider::refresh(LayerRecord record, const Layer& layer, bool current) const
{
    const bool selected = record.isSelected();
    write(record, layer, current);
    record.setSelected(selected);
}

void Provider::write(LayerRecord& record, const Layer& layer, bool current) const
{
    for (const Field* field : m_fields)
        field->write(record, field->key, layer, current);
    setId(record.node(), layer.id);
}

VnJsonPtr Provider::list(const drawing::Drawing& drawing, const Filter& passes) const
{
    const std::vector<const Layer*> layers = sortedByName(drawing.layers(), passes);
    VnJsonPtr list = hostextras::createArray(static_cast<int>(layers.size()));
    for (const Layer* layer : layers)
        hostextras::append(list, make(*layer, layer->id == drawing.currentLayer()));
    return list;
}

VnJsonPtr Provider::tree(const drawing::Drawing& drawing, const Filter& passes) const
{
    VnJsonPtr tree = vnsi::ElementValue::createObject(8);
    tree->SetDataJ(key::kList, list(drawing, passes));
    return tree;
}

LayerProperties Provider::read(const VnJsonPtr& record, const LayerProperties& base) const
{
    LayerProperties properties = base;
    for (int field = 0; field < fieldCount(); ++field)
        readField(field, record, properties);
    return properties;
}

void Provider::readField(int field, const VnJsonPtr& record, LayerProperties& properties) const
{
    const Field& read = *m_fields[static_cast<std::size_t>(field)];
    if (read.read)
        read.read(LayerRecord(record), read.key, properties);
}

drawing::LayerId idOf(const VnJsonPtr& record)
{
    return drawing::LayerId{
        LayerRecord(record).number(kId, static_cast<int>(drawing::LayerId::None))};
}

void setId(const VnJsonPtr& record, drawing::LayerId id)
{
    LayerRecord(record).setNumber(kId, static_cast<int>(id));
}

QString nameOf(const VnJsonPtr& record)
{
    return vnsi::vnutOdStringToQString(LayerRecord(record).name());
}

bool isModified(const VnJsonPtr& record)
{
    return LayerRecord(record).isModified();
}

} // namespace layerrecords
