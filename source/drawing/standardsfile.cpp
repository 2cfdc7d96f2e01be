#include "standardsfile.h"

#include "drawingprivate.h"
#include "file/drawingtexts.h"
#include "translation/savedmappings.h"
#include "translation/targetlayers.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

/// Defined outside of the namespace because the macro requires it.
static void makeStandardAvailable()
{
    Q_INIT_RESOURCE(standard);
}

namespace drawing {

namespace {

constexpr char kEmptyDrawing[] = ":/drawing/standard.dxf";

tl::unexpected<Error> refusal(const QString& path, const QString& cause)
{
    return drawing::refusal(Texts::tr("无法把图层映射保存到“%1”：%2文件未改动。")
                                .arg(QDir::toNativeSeparators(path), cause));
}

const QString& layerZero()
{
    static const QString name = QStringLiteral("0");
    return name;
}

bool isZero(const TargetLayer& target)
{
    return nameKey(target.name) == layerZero();
}

bool isEverywhere(const TargetLayer& target)
{
    return isZero(target) || isNeverPlotted(target.name);
}

/// The plot styles that targets refer to by name.
QStringList namedPlotStyles(
    const std::vector<LayerMapping>& mappings, const std::vector<TargetLayer>& targets)
{
    QHash<QString, QString> names; // The keys are folded names.
    const auto add = [&names](const TargetLayer& target) {
        if (isNamedPlotStyle(target.plotStyle))
            names.insert(nameKey(target.plotStyle), target.plotStyle);
    };
    for (const LayerMapping& mapping : mappings)
        add(mapping.to);
    std::for_each(targets.begin(), targets.end(), add);
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

/// Writes targets and mappings to a drawing in its open step.
class StandardWriter
{
public:
    explicit StandardWriter(Drawing& drawing)
        : m_drawing(drawing),
          m_saved(DrawingAccess::data(drawing).mappings),
          m_layers(DrawingAccess::data(drawing).translationParts())
    {
    }

    Expected<void> putTarget(const TargetLayer& target);
    Expected<void> putMappings(const std::vector<LayerMapping>& mappings, bool isNew);
    QStringList takeNotices() { return m_notices + m_layers.takeNotices(); }

private:
    Drawing& m_drawing;
    SavedMappings& m_saved;
    TargetLayers m_layers;
    QHash<QString, TargetLayer> m_put; // The targets written so far; the keys are folded names.
    QStringList m_notices;
};

Expected<void> StandardWriter::putTarget(const TargetLayer& target)
{
    const QString key = nameKey(target.name);
    const auto known = m_put.constFind(key);
    if (known != m_put.constEnd()) {
        if (!isSameTarget(*known, target))
            m_notices +=
                Texts::tr("目标图层“%1”有几组不同的特性，只保存了第一组。").arg(target.name);
        return {};
    }
    m_put.insert(key, target);
    if (isNamedPlotStyle(target.plotStyle) && !m_drawing.hasNamedPlotStyles())
        m_notices += Texts::tr("文件中的打印样式由颜色决定：没有保存图层“%1”的打印样式“%2”。")
                         .arg(target.name, target.plotStyle);
    if (const Layer* layer = m_drawing.findLayer(target.name.trimmed()))
        return m_layers.change(layer->id, target);
    return m_layers.add(target, {}).map([](LayerId) {});
}

Expected<void> StandardWriter::putMappings(const std::vector<LayerMapping>& mappings, bool isNew)
{
    const SavedMappingList before = m_saved.read();
    SavedMappingList list;
    list.isZeroIdle = (isNew || before.isZeroIdle) && !m_put.contains(layerZero());
    QSet<QString> sources;
    for (const LayerMapping& mapping : mappings) {
        if (sources.contains(nameKey(mapping.from))) {
            m_notices += Texts::tr("图层“%1”有几条映射，只保存了第一条。").arg(mapping.from);
            continue;
        }
        sources.insert(nameKey(mapping.from));
        list.mappings.push_back({mapping.from.trimmed(), mapping.to.name.trimmed()});
    }
    const auto isDropped = [&sources](const SavedMapping& mapping) {
        return !sources.contains(nameKey(mapping.from));
    };
    const auto dropped = std::count_if(before.mappings.begin(), before.mappings.end(), isDropped);
    if (dropped > 0)
        m_notices += Texts::tr("文件中原有的 %1 条其他映射已被现在的映射取代。").arg(dropped);
    return m_saved.write(list);
}

} // namespace

Expected<Standard> readStandard(const QString& path)
{
    const auto opened = Drawing::open(path);
    if (!opened)
        return tl::make_unexpected(opened.error());
    Drawing& drawing = **opened;
    const SavedMappingList saved = DrawingAccess::data(drawing).mappings.read();
    Standard standard;
    standard.layers = targetLayers(drawing);
    QHash<QString, const TargetLayer*> byName;
    for (const TargetLayer& target : standard.layers)
        byName.insert(nameKey(target.name), &target);
    for (const SavedMapping& mapping : saved.mappings) {
        if (const TargetLayer* target = byName.value(nameKey(mapping.to)))
            standard.mappings.push_back({mapping.from, *target});
        else
            standard.notices +=
                Texts::tr("文件“%1”：映射“%2” → “%3”的目标图层不在文件中，没有读入。")
                    .arg(QDir::toNativeSeparators(path), mapping.from, mapping.to);
    }
    if (saved.isZeroIdle)
        standard.layers.erase(
            std::remove_if(standard.layers.begin(), standard.layers.end(), isZero),
            standard.layers.end());
    if (std::all_of(standard.layers.begin(), standard.layers.end(), isEverywhere) &&
        standard.mappings.empty())
        return drawing::refusal(Texts::tr("文件“%1”除图层 0 外没有图层，不能作为图层标准。")
                                    .arg(QDir::toNativeSeparators(path)));
    return standard;
}

Expected<QStringList> saveStandard(const QString& path, const std::vector<LayerMapping>& mappings,
    const std::vector<TargetLayer>& targets)
{
    makeStandardAvailable();
    const QFileInfo info(path);
    const bool isNew = !info.exists() || (info.isFile() && info.size() == 0);
    auto opened = Drawing::open(isNew ? QString::fromLatin1(kEmptyDrawing) : path);
    if (!opened)
        return refusal(path, opened.error().text);
    Drawing& drawing = **opened;
    StandardWriter writer(drawing);
    DrawingStep step(drawing, {});
    if (const QStringList styles = namedPlotStyles(mappings, targets); isNew && !styles.isEmpty())
        DrawingAccess::data(drawing).plotStyles.make(styles);
    Expected<void> done;
    for (auto mapping = mappings.begin(); done && mapping != mappings.end(); ++mapping)
        done = writer.putTarget(mapping->to);
    for (auto target = targets.begin(); done && target != targets.end(); ++target)
        done = writer.putTarget(*target);
    if (done)
        done = writer.putMappings(mappings, isNew);
    if (!done)
        return refusal(path, done.error().text);
    step.commit();
    QStringList notices = writer.takeNotices() + drawing.takeNotices();
    return drawing.save(path).map([&notices] { return std::move(notices); });
}

} // namespace drawing
