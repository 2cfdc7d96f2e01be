#include "translationrecords.h"
#include "hostextras.h"
#include "valuetree.h"

#include "drawing.h"
#include "linetypes.h"
#include "lineweighttext.h"
#include "namerule.h"
#include "recordprovider.h"
#include "targetrecord.h"

using drawing::LayerMapping;
using drawing::TargetLayer;
using vnsi::ElementValue;
using vnsi::LayerColor;
using vnsi::TargetRecord;
using vnsi::VnJsonPtr;

namespace {

using namespace vnsi::transkey;

// The workbench's own keys for properties of targets that the dialogs keep but do not show.
constexpr char kColorIndex[] = "transToColorIndex";
constexpr char kPlotted[] = "transToPlotted";

/// A plot style by its names in records and in files. ByLayer and ByBlock are impossible for a
/// layer, so its style then stays as it is.
struct PlotStyleRow
{
    const char* recorded;
    const char* filed;
};

constexpr PlotStyleRow kPlotStyles[] = {
    {vnsi::transkey::kNormalPlotStyle, "Normal"}, {"ByLayer", ""}, {"ByBlock", ""}};

struct OptionRow
{
    vnsi::TranslatorOption option;
    bool drawing::TranslationOptions::*member;
};

constexpr OptionRow kOptions[] = {
    {vnsi::kForceColor, &drawing::TranslationOptions::colorByLayer},
    {vnsi::kForceLinetype, &drawing::TranslationOptions::linetypeByLayer},
    {vnsi::kForceTransparency, &drawing::TranslationOptions::transparencyByLayer},
    {vnsi::kInsideBlocks, &drawing::TranslationOptions::inBlocks},
    {vnsi::kWriteLog, &drawing::TranslationOptions::writeLog},
    {vnsi::kShowSelected, &drawing::TranslationOptions::showSelection},
};

QString text(const VnJsonPtr& record, const char* key)
{
    return vnsi::vnutOdStringToQString(record->GetDataSW(key));
}

OdString od(const QString& text)
{
    return vnsi::vnutQStringToOdString(text);
}

QString recordedPlotStyle(const QString& style)
{
    return style == QLatin1String(kPlotStyles[0].filed) ? QString::fromUtf8(kPlotStyles[0].recorded)
                                                        : style;
}

QString filedPlotStyle(const QString& style)
{
    for (const PlotStyleRow& row : kPlotStyles) {
        if (style == QString::fromUtf8(row.recorded))
            return QString::fromLatin1(row.filed);
    }
    return style;
}

} // namespace

VnJsonPtr TranslationRecords::sources(const drawing::Drawing& drawing)
{
    static const layerrecords::Provider names({vnsi::layerkey::kName, vnsi::layerkey::kUsed});
    const VnJsonPtr layers =
        names.list(drawing, [](const drawing::Layer& layer) { return !layer.dependsOnReference; });
    VnJsonPtr records = hostextras::createArray(layers.ArrayCount());
    for (int i = 0, count = layers.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = ElementValue::createObject(2);
        record->SetDataSW(kFromName, od(layerrecords::nameOf(layers(i))));
        record->SetDataB(kFromUsed, layers(i)->GetDataB(vnsi::layerkey::kUsed));
        hostextras::append(records, record);
    }
    return records;
}

OdInt64 TranslationRecords::numberOf(const drawing::LinetypePointer& definition)
{
    if (!definition)
        return 0;
    const QString name = vnsi::foldedName(definition->name);
    for (const OdInt64 number : m_numbers.values(name)) {
        if (linetype(number)->tags == definition->tags)
            return number;
    }
    m_linetypes.push_back(definition);
    const auto number = static_cast<OdInt64>(m_linetypes.size());
    m_numbers.insert(name, number);
    return number;
}

/// The definition with this number, provided that it has this name. A newly chosen name takes
/// precedence over an outdated number.
drawing::LinetypePointer TranslationRecords::definition(OdInt64 number, const QString& name) const
{
    const QList<OdInt64> numbers = m_numbers.values(vnsi::foldedName(name));
    if (numbers.isEmpty())
        return nullptr;
    return linetype(numbers.contains(number) ? number : numbers.constLast());
}

VnJsonPtr TranslationRecords::target(const TargetLayer& target)
{
    TargetRecord record(ElementValue::createObject(12));
    record.setName(target.name);
    record.setColor(target.trueColor ? LayerColor::ofRgb(*target.trueColor)
                                     : LayerColor::ofIndex(target.colorIndex));
    record.setLinetype(target.linetype, numberOf(target.linetypeDefinition));
    record.setLineWidth(target.lineweight, vnsi::lineWidthText(target.lineweight));
    record.setTransparency(target.transparency);
    record.setPlotStyle(recordedPlotStyle(target.plotStyle));
    record.setUsed(target.used);
    record.node()->SetDataI(kColorIndex, target.colorIndex);
    if (target.plotted)
        record.node()->SetDataB(kPlotted, *target.plotted);
    return record.node();
}

TargetLayer TranslationRecords::target(const VnJsonPtr& node) const
{
    const TargetRecord record(node);
    const LayerColor color = record.color();
    TargetLayer target;
    target.name = record.name();
    if (color.isIndex()) {
        target.colorIndex = color.index();
    } else {
        target.colorIndex = node->GetDataI(kColorIndex, target.colorIndex);
        target.trueColor = color.rgb();
    }
    target.linetype = record.linetype();
    target.linetypeDefinition = definition(record.linetypeId(), target.linetype);
    target.lineweight = record.lineWidth();
    target.transparency = record.transparency();
    target.plotStyle = filedPlotStyle(record.plotStyle());
    if (host::hasKey(node, kPlotted))
        target.plotted = node->GetDataB(kPlotted);
    target.used = record.isUsed();
    return target;
}

VnJsonPtr TranslationRecords::mapping(const LayerMapping& mapping)
{
    const VnJsonPtr from = ElementValue::createObject(2);
    from->SetDataSW(kFromName, od(mapping.from));
    VnJsonPtr record = ElementValue::createObject(2);
    record->SetDataJ(kFrom, from);
    record->SetDataJ(kTo, target(mapping.to));
    return record;
}

std::vector<LayerMapping> TranslationRecords::mappings(const VnJsonPtr& array) const
{
    std::vector<LayerMapping> mappings;
    for (int i = 0, count = array.ArrayCount(); i < count; ++i) {
        const VnJsonPtr from = array(i)->GetDataJ(kFrom);
        const VnJsonPtr to = array(i)->GetDataJ(kTo);
        if (from && to)
            mappings.push_back({text(from, kFromName), target(to)});
    }
    return mappings;
}

void TranslationRecords::offerLinetypes(const drawing::Drawing& drawing) const
{
    std::vector<host::LineType> offered;
    for (const QString& name : drawing.linetypes())
        offered.push_back({od(name), {}});
    std::uint64_t number = 0;
    for (const drawing::LinetypePointer& definition : m_linetypes)
        offered.push_back({od(definition->name), OdDbObjectId(++number)});
    host::setLineTypes(std::move(offered));
}

bool TranslationRecords::isComplete(const VnJsonPtr& settings)
{
    return settings.ArrayCount() == vnsi::kTranslatorOptionCount;
}

drawing::TranslationOptions TranslationRecords::options(const VnJsonPtr& settings)
{
    drawing::TranslationOptions options;
    if (!isComplete(settings))
        return options;
    for (const OptionRow& row : kOptions)
        options.*row.member = settings(row.option)->GetDataB(kSetting);
    return options;
}
