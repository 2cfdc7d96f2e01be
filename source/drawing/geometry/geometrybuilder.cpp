#include "geometrybuilder.h"

#include "draworder.h"
#include "file/drawingtexts.h"
#include "geometrytext.h"
#include "layers/layouts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drawing {

namespace {

constexpr int kMaxDepth = 64; ///< The limit for nested block references.

QPointF flat(const Vec3& point)
{
    return {point.x, point.y};
}

bool isInModelSpace(const Entity& entity)
{
    return entity.block < 0 && !entity.paperSpace;
}

Box estimatedBounds(const TextRun& run)
{
    const double width = run.fitWidth > 0 ? run.fitWidth : textWidth(run.text);
    const double start = -width * static_cast<double>(run.horizontal) / 2;
    Box box;
    for (const double along : {start, start + width}) {
        // The line is within these limits, whatever its vertical alignment.
        for (const double across : {-1.2, 1.2})
            box.add(run.origin + run.right * along + run.up * across);
    }
    return box;
}

} // namespace

GeometryBuilder::GeometryBuilder(
    const GeometrySource& source, GeometryRoom& room, Progress* progress)
    : m_source(source),
      m_room(room),
      m_progress(progress),
      m_switches(readPictureSwitches(source.file.headerTags())),
      m_linetypes(std::make_shared<const LinetypePatterns>(source.linetypes)),
      m_reader(source, *m_linetypes)
{
    m_definitions.resize(source.entities.blocks().size());
    m_active.resize(source.entities.blocks().size());
}

void GeometryBuilder::startAnew()
{
    m_geometry = {};
    m_geometry.owners.emplace_back();
    m_geometry.switches = m_switches;
    m_geometry.linetypes = m_linetypes;
    m_groupIndex.clear();
    m_ownerIndex.clear();
    m_used = {};
}

void GeometryBuilder::takeRoom()
{
    m_room.take(m_used);
    m_geometry.amount.vertices += m_used.vertices;
    m_geometry.amount.pieces += m_used.pieces;
    m_geometry.amount.instances += m_used.instances;
    m_used = {};
}

Expected<Geometry> GeometryBuilder::build(const EntityRange& range)
{
    startAnew();
    m_geometry.entities = range;
    const auto& entities = m_source.entities.all();
    Definition definition;
    for (std::size_t i = range.first; i < range.last; ++i) {
        const Entity& entity = entities[i];
        if (i % 256 == 0 && !goOn(i - range.first, range.last - range.first))
            return tl::unexpected(Error{Texts::tr("已取消。"), 0, true});
        if (entity.subEntity || entity.removed)
            continue;
        m_isThroughViewports = !m_source.layouts.isShown(entity);
        if (m_isThroughViewports && (m_source.layouts.isModelSpace() || !isInModelSpace(entity)))
            continue;
        definition.clear();
        m_reader.read(i, false, definition);
        m_entity = static_cast<int>(i);
        m_rank = m_source.order.rank(i, m_source);
        emitDefinition(definition, {}, {}, 0);
    }
    if (isCancelled())
        return tl::unexpected(Error{Texts::tr("已取消。"), 0, true});
    takeRoom();
    return std::move(m_geometry);
}

bool GeometryBuilder::goOn(std::size_t done, std::size_t total)
{
    const int percent = static_cast<int>(done * 100 / total);
    if (m_progress && m_progress->report && percent != m_percent)
        m_progress->report(percent);
    m_percent = percent;
    takeRoom();
    return !isCancelled();
}

const Definition& GeometryBuilder::definitionOf(int block)
{
    std::optional<Definition>& known = m_definitions[static_cast<std::size_t>(block)];
    if (known)
        return *known;
    known.emplace();
    const Block& source = m_source.entities.blocks()[static_cast<std::size_t>(block)];
    std::vector<std::pair<std::size_t, std::size_t>> inOrder; // Of drawing: where, and which.
    for (int i = source.first; i < source.first + source.count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (index >= m_source.entities.all().size())
            break;
        const Entity& entity = m_source.entities.all()[index];
        if (!entity.subEntity && !entity.removed)
            inOrder.emplace_back(m_source.order.rank(index, m_source), index);
    }
    std::sort(inOrder.begin(), inOrder.end());
    for (const auto& [rank, index] : inOrder)
        m_reader.read(index, true, *known);
    return *known;
}

bool GeometryBuilder::isFull()
{
    const bool full = m_room.isFull(m_used) || isCancelled();
    m_geometry.truncated = m_geometry.truncated || full;
    return full;
}

LayerId GeometryBuilder::layerOf(const EntityStyle& style, const Context& context) const
{
    return style.layer == m_source.layerZero && context.layer != LayerId::None ? context.layer
                                                                               : style.layer;
}

GeometryColor GeometryBuilder::colorOf(const EntityStyle& style, const Context& context) const
{
    switch (style.color) {
    case EntityStyle::Color::ByLayer:
        return {GeometryColor::Source::Layer, static_cast<quint32>(layerOf(style, context))};
    case EntityStyle::Color::ByBlock:
        return context.style.color;
    case EntityStyle::Color::Index:
        return {GeometryColor::Source::Index, style.value};
    case EntityStyle::Color::True:
        break;
    }
    return {GeometryColor::Source::True, style.value};
}

GeometryStyle GeometryBuilder::styleOf(const EntityStyle& style, const Context& context) const
{
    const LayerId layer = layerOf(style, context);
    const auto resolved = [layer](const EntitySetting& setting, const GeometrySetting& ofBlock) {
        if (setting.source == EntitySetting::Source::Block)
            return ofBlock;
        return setting.source == EntitySetting::Source::Layer
                   ? GeometrySetting{layer, 0}
                   : GeometrySetting{LayerId::None, setting.value};
    };
    return {colorOf(style, context), resolved(style.linetype, context.style.linetype),
        resolved(style.lineweight, context.style.lineweight),
        resolved(style.transparency, context.style.transparency)};
}

int GeometryBuilder::ownersWith(int owners, LayerId layer)
{
    const std::vector<LayerId>& known = m_geometry.owners[static_cast<std::size_t>(owners)];
    if (layer == LayerId::None || std::find(known.begin(), known.end(), layer) != known.end())
        return owners;
    const auto [found, isNew] =
        m_ownerIndex.try_emplace({owners, layer}, static_cast<int>(m_geometry.owners.size()));
    if (isNew) {
        std::vector<LayerId> longer = known;
        longer.push_back(layer);
        m_geometry.owners.push_back(std::move(longer));
    }
    return found->second;
}

GeometryGroup& GeometryBuilder::groupFor(const EntityStyle& style, const Context& context)
{
    const GroupKey key{layerOf(style, context), ownersWith(context.owners, style.owner),
        context.whole, m_isThroughViewports, styleOf(style, context)};
    auto found = m_groupIndex.constFind(key);
    if (found == m_groupIndex.constEnd()) {
        found = m_groupIndex.insert(key, m_geometry.groups.size());
        GeometryGroup& group = m_geometry.groups.emplace_back();
        group.layer = key.layer;
        group.owners = key.owners;
        group.whole = key.whole;
        group.isThroughViewports = key.isThroughViewports;
        group.style = key.style;
    }
    return m_geometry.groups[found.value()];
}

void GeometryBuilder::emitDefinition(
    const Definition& definition, const Transform3& place, const Context& context, int depth)
{
    for (const Definition::Shape& shape : definition.shapes) {
        if (isFull())
            return;
        emitShape(definition, shape, place, context);
    }
    for (const Definition::Text& text : definition.texts) {
        if (isFull())
            return;
        emitText(text, place, context);
    }
    for (const Definition::Endless& line : definition.endless) {
        if (isFull())
            return;
        noteEndless(line, place, context);
    }
    for (const Definition::Reference& reference : definition.references) {
        if (isFull())
            return;
        emitReference(reference, place, context, depth);
    }
}

void GeometryBuilder::emitShape(const Definition& definition, const Definition::Shape& shape,
    const Transform3& place, const Context& context)
{
    GeometryGroup& group = groupFor(shape.style, context);
    Primitive primitive;
    primitive.first = static_cast<quint32>(group.vertices.size());
    for (std::size_t i = shape.first; i < shape.first + shape.count; ++i) {
        const Vec3& source = definition.vertices[i];
        const Vec3 mapped = place.map(source);
        if (mapped.isFinite()) {
            group.vertices.push_back(flat(mapped));
            primitive.bounds.add(flat(mapped));
        } else if (std::isnan(source.x)) {
            group.vertices.emplace_back(qQNaN(), qQNaN());
        }
    }
    primitive.count = static_cast<quint32>(group.vertices.size()) - primitive.first;
    if (primitive.bounds.isEmpty())
        return;
    primitive.entity = m_entity;
    primitive.shape = shape.shape;
    primitive.patternRestarts = shape.patternRestarts;
    const double scale = place.planarScale();
    primitive.linetypeScale = static_cast<float>(shape.style.linetypeScale * scale);
    primitive.width = static_cast<float>(shape.width * scale);
    if (primitive.shape == Primitive::Shape::Lines && primitive.width > 0)
        primitive.bounds.grow(primitive.width * 0.5);
    primitive.order = nextPlace();
    m_used.vertices += primitive.count;
    group.bounds.add(primitive.bounds);
    group.hasFills = group.hasFills || primitive.shape == Primitive::Shape::Fill;
    group.hasMasks = group.hasMasks || primitive.shape == Primitive::Shape::Mask;
    group.primitives.push_back(primitive);
}

void GeometryBuilder::noteEndless(
    const Definition::Endless& line, const Transform3& place, const Context& context)
{
    const Vec3 from = place.map(line.from);
    const Vec3 direction = place.mapDirection(line.direction);
    GeometryGroup& group = groupFor(line.style, context);
    const auto index = static_cast<std::size_t>(&group - m_geometry.groups.data());
    if (from.isFinite() && direction.isFinite())
        m_geometry.endless.push_back(
            {index, flat(from), flat(direction), line.bothWays, m_entity, nextPlace()});
}

void GeometryBuilder::emitText(
    const Definition::Text& text, const Transform3& place, const Context& context)
{
    const Vec3 origin = place.map(text.origin);
    const Vec3 right = place.mapDirection(text.right);
    const Vec3 up = place.mapDirection(text.up);
    if (!origin.isFinite() || !right.isFinite() || !up.isFinite())
        return;
    GeometryGroup& group = groupFor(text.style, context);
    TextRun run = text.run;
    run.origin = flat(origin);
    run.right = flat(right);
    run.up = flat(up);
    run.entity = m_entity;
    run.bounds = estimatedBounds(run);
    run.order = nextPlace();
    group.bounds.add(run.bounds);
    group.texts.push_back(std::move(run));
}

void GeometryBuilder::emitReference(const Definition::Reference& reference, const Transform3& place,
    const Context& context, int depth)
{
    const auto block = static_cast<std::size_t>(reference.block);
    const bool isShown =
        depth < kMaxDepth && !m_active[block] && !definitionOf(reference.block).isEmpty();
    if (!isShown) {
        ++m_used.instances; // Even an instance that shows nothing takes time.
        return;
    }
    const Definition& definition = definitionOf(reference.block);
    Context inner;
    inner.layer = layerOf(reference.style, context);
    inner.style = styleOf(reference.style, context);
    inner.owners = ownersWith(context.owners, inner.layer);
    inner.whole = reference.isWhole ? inner.layer : context.whole;

    m_active[block] = true;
    for (int row = 0; row < reference.rows && !isFull(); ++row) {
        for (int column = 0; column < reference.columns && !isFull(); ++column) {
            ++m_used.instances;
            const Vec3 shift = reference.columnStep * column + reference.rowStep * row;
            emitDefinition(definition, place * Transform3::translation(shift) * reference.place,
                inner, depth + 1);
        }
    }
    m_active[block] = false;
}

} // namespace drawing
