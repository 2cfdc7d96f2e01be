#include "layertranslation.h"

#include "entities/entityedits.h"
#include "file/drawingtexts.h"
#include "layers/layeredits.h"
#include "layers/leftout.h"
#include "targetlayers.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace drawing {

namespace {

bool alwaysStays(const Layer& layer)
{
    return layer.properties.name == QLatin1String("0") || isNeverPlotted(layer.properties.name);
}

class Translation
{
public:
    Translation(const TranslationParts& parts, const std::vector<LayerMapping>& mappings,
        const TranslationOptions& options)
        : m_parts(parts),
          m_mappings(mappings),
          m_options(options),
          m_layers(parts)
    {
    }

    TranslationReport run();

private:
    /// A mapping that can be carried out.
    struct Plan
    {
        size_t mapping = 0;
        LayerId from = LayerId::None;
        LayerId to = LayerId::None; ///< None until the drawing has this layer.
    };

    void checkMappings();
    QString refusalOf(const LayerMapping& mapping, const Layer* source);
    void findBlockContents();
    Expected<void> prepareTarget(Plan& plan);
    Expected<void> changeTarget(Plan& plan);
    Expected<void> makeTarget(Plan& plan);
    void moveCurrentLayer();
    void moveContents();
    OwnProperties byLayer() const;
    bool mayGo(const Plan& plan, const ContentMove& move) const;

    const TargetLayer& target(const Plan& plan) const { return m_mappings[plan.mapping].to; }
    MappingResult& result(const Plan& plan) { return m_report.mappings[plan.mapping]; }

    const TranslationParts m_parts;
    const std::vector<LayerMapping>& m_mappings;
    const TranslationOptions& m_options;
    TargetLayers m_layers;
    TranslationReport m_report;
    std::vector<Plan> m_plans;
    QSet<int> m_sources; // Layer ids.
    QSet<int> m_targets; // Ids of the target layers, including created ones.
    // By the folded name of a target, the mapping that defines it.
    QHash<QString, size_t> m_decided;
    QHash<QString, LayerId> m_targetIds;
    std::vector<char> m_hasBlockContents; // Indexed by layer id.
};

/// Why a mapping cannot be carried out, judging by its names; empty when it can.
QString Translation::refusalOf(const LayerMapping& mapping, const Layer* source)
{
    if (!source)
        return Texts::tr("图形中没有图层“%1”。").arg(mapping.from);
    const QString& name = source->properties.name;
    if (source->dependsOnReference)
        return Texts::tr("图层“%1”依赖外部参照，不能转换。").arg(name);
    if (m_sources.contains(static_cast<int>(source->id)))
        return Texts::tr("图层“%1”已在前面的映射中。").arg(name);
    const Layer* target = m_parts.layers.find(mapping.to.name.trimmed());
    if (target && target->dependsOnReference)
        return Texts::tr("目标图层“%1”依赖外部参照。").arg(target->properties.name);
    return {};
}

void Translation::checkMappings()
{
    for (size_t i = 0; i < m_mappings.size(); ++i) {
        const LayerMapping& mapping = m_mappings[i];
        const Layer* source = m_parts.layers.find(mapping.from.trimmed());
        MappingResult result;
        result.from = source ? source->properties.name : mapping.from;
        result.to = mapping.to.name;
        result.cause = refusalOf(mapping, source);
        m_report.mappings.push_back(result);
        if (!result.cause.isEmpty())
            continue;
        m_sources.insert(static_cast<int>(source->id));
        const Layer* target = m_parts.layers.find(mapping.to.name.trimmed());
        if (target)
            m_targets.insert(static_cast<int>(target->id));
        m_plans.push_back({i, source->id, target ? target->id : LayerId::None});
    }
}

/// Finds the layers with block contents. Subentities count, because a layer with only a vertex on
/// it must not be deleted either.
void Translation::findBlockContents()
{
    m_hasBlockContents.assign(static_cast<size_t>(m_parts.layers.entryCount()), false);
    if (m_options.inBlocks)
        return;
    for (const Entity& entity : m_parts.entities.all()) {
        if (!entity.removed && m_parts.entities.isInBlock(entity))
            m_hasBlockContents[static_cast<size_t>(entity.layer)] = true;
    }
}

Expected<void> Translation::prepareTarget(Plan& plan)
{
    const QString key = nameKey(target(plan).name);
    const auto decided = m_decided.constFind(key);
    if (decided == m_decided.constEnd()) {
        auto done = plan.to == LayerId::None ? makeTarget(plan) : changeTarget(plan);
        if (!done)
            return done;
        m_decided.insert(key, plan.mapping);
        m_targetIds.insert(key, plan.to);
        m_targets.insert(static_cast<int>(plan.to));
        return {};
    }
    plan.to = m_targetIds.value(key);
    result(plan).target = MappingResult::Target::Unchanged;
    if (!isSameTarget(m_mappings[*decided].to, target(plan)))
        result(plan).notices += Texts::tr("目标图层“%1”在前面的映射中有别的特性，以前面的为准。")
                                    .arg(target(plan).name);
    return {};
}

Expected<void> Translation::changeTarget(Plan& plan)
{
    const LayerProperties before = m_parts.layers.layer(plan.to)->properties;
    auto changed = m_layers.change(plan.to, target(plan));
    if (!changed)
        return changed;
    const bool isSame = m_parts.layers.layer(plan.to)->properties == before;
    result(plan).target =
        isSame ? MappingResult::Target::Unchanged : MappingResult::Target::Changed;
    return {};
}

/// Creates the target layer. When the whole source layer moves, it is renamed instead, so that
/// references to it, such as in viewports and layer states, stay valid.
Expected<void> Translation::makeTarget(Plan& plan)
{
    const Layer source = *m_parts.layers.layer(plan.from);
    result(plan).target = MappingResult::Target::Made;
    const bool isRenamed = !alwaysStays(source) &&
                           !m_targets.contains(static_cast<int>(plan.from)) &&
                           !m_hasBlockContents[static_cast<size_t>(plan.from)];
    if (isRenamed) {
        plan.to = plan.from;
        result(plan).sourceRemoved = true;
        return m_layers.turnInto(plan.from, target(plan));
    }
    return m_layers.add(target(plan), source.properties).map([&plan](LayerId id) { plan.to = id; });
}

void Translation::moveCurrentLayer()
{
    const LayerId current = m_parts.layers.current();
    for (const Plan& plan : m_plans) {
        if (plan.from != current || plan.to == current)
            continue;
        const LayerProperties& properties = m_parts.layers.layer(plan.to)->properties;
        if (properties.frozen)
            result(plan).notices +=
                Texts::tr("目标图层“%1”已冻结，不能成为当前图层：当前图层“%2”保留。")
                    .arg(properties.name, m_parts.layers.layer(current)->properties.name);
        else if (const auto moved = m_parts.layerEdits.setCurrent(plan.to); !moved)
            result(plan).notices += moved.error().text;
        return;
    }
}

bool Translation::mayGo(const Plan& plan, const ContentMove& move) const
{
    const Layer* source = m_parts.layers.layer(plan.from);
    return plan.from != plan.to && move.isEmptied && !alwaysStays(*source) &&
           plan.from != m_parts.layers.current() &&
           !m_targets.contains(static_cast<int>(plan.from));
}

OwnProperties Translation::byLayer() const
{
    OwnProperties properties;
    properties.setFlag(OwnProperty::Color, m_options.colorByLayer);
    properties.setFlag(OwnProperty::Linetype, m_options.linetypeByLayer);
    properties.setFlag(OwnProperty::Lineweight, m_options.lineweightByLayer);
    properties.setFlag(OwnProperty::Transparency, m_options.transparencyByLayer);
    return properties;
}

void Translation::moveContents()
{
    std::vector<ContentMove> moves;
    moves.reserve(m_plans.size());
    for (const Plan& plan : m_plans)
        moves.push_back({plan.from, plan.to});
    m_parts.entityEdits.moveContents(moves, {m_options.inBlocks, byLayer()});
    for (size_t i = 0; i < moves.size(); ++i) {
        MappingResult& result = this->result(m_plans[i]);
        result.translated = moves[i].moved;
        result.leftInBlocks = moves[i].leftInBlocks;
        if (!mayGo(m_plans[i], moves[i]))
            continue;
        m_parts.layerEdits.drop(m_plans[i].from, m_plans[i].to);
        result.sourceRemoved = true;
    }
}

TranslationReport Translation::run()
{
    const std::vector<Layer>& layers = m_parts.layers.listed();
    m_report.entities = std::accumulate(layers.begin(), layers.end(), 0,
        [](int sum, const Layer& layer) { return sum + layer.entityCount; });
    checkMappings();
    findBlockContents();
    std::vector<Plan> possible;
    for (Plan& plan : m_plans) {
        const auto prepared = prepareTarget(plan);
        result(plan).notices += m_layers.takeNotices();
        if (prepared) {
            possible.push_back(plan);
            continue;
        }
        MappingResult& leftOut = result(plan);
        leftOut.target = MappingResult::Target::LeftOut;
        leftOut.sourceRemoved = false;
        leftOut.cause = prepared.error().text;
    }
    m_plans.swap(possible);
    moveCurrentLayer();
    moveContents();
    m_report.notices = m_parts.leftOut.take();
    return std::move(m_report);
}

} // namespace

int TranslationReport::appliedCount() const
{
    return static_cast<int>(std::count_if(mappings.begin(), mappings.end(),
        [](const MappingResult& result) { return result.isApplied(); }));
}

int TranslationReport::translatedCount() const
{
    return std::accumulate(mappings.begin(), mappings.end(), 0,
        [](int sum, const MappingResult& result) { return sum + result.translated; });
}

TranslationReport translateLayers(const TranslationParts& parts,
    const std::vector<LayerMapping>& mappings, const TranslationOptions& options)
{
    return Translation(parts, mappings, options).run();
}

std::vector<TargetLayer> targetLayers(const LayerTable& layers, const LinetypeTable& linetypes)
{
    QHash<QString, LinetypePointer> definitions;
    std::vector<TargetLayer> targets;
    targets.reserve(layers.listed().size());
    for (const Layer& layer : layers.listed()) {
        if (layer.dependsOnReference)
            continue;
        const LayerProperties& p = layer.properties;
        auto definition = definitions.find(p.linetype);
        if (definition == definitions.end())
            definition = definitions.insert(p.linetype, linetypes.find(p.linetype));
        targets.push_back({p.name, p.colorIndex, p.trueColor, p.linetype, *definition, p.lineweight,
            p.transparency, p.plotStyle, p.plotted, layer.used()});
    }
    return targets;
}

std::vector<LayerMapping> sameNamedMappings(const LayerTable& layers,
    const std::vector<TargetLayer>& targets, const std::vector<LayerMapping>& known)
{
    QSet<QString> mapped;
    for (const LayerMapping& mapping : known)
        mapped.insert(nameKey(mapping.from));
    QHash<QString, const TargetLayer*> byName;
    for (auto target = targets.rbegin(); target != targets.rend(); ++target)
        // The first of several targets with one name wins.
        byName.insert(nameKey(target->name), &*target);
    std::vector<LayerMapping> mappings;
    for (const Layer& layer : layers.listed()) {
        const QString key = nameKey(layer.properties.name);
        const TargetLayer* target = byName.value(key);
        if (target && !layer.dependsOnReference && !mapped.contains(key))
            mappings.push_back({layer.properties.name, *target});
    }
    return mappings;
}

} // namespace drawing
