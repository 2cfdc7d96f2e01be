#include "geometryreader.h"

#include "entities/entitytable.h"
#include "file/symbolname.h"
#include "geometrypolyline.h"
#include "layers/colorindex.h"

#include <algorithm>
#include <cmath>

namespace drawing {

struct EntityReader::HandlerRow
{
    std::string_view type;
    Handler handler;
};

const EntityReader::HandlerRow EntityReader::kHandlers[] = {
    {"LINE", &EntityReader::line},
    {"LWPOLYLINE", &EntityReader::lwPolyline},
    {"INSERT", &EntityReader::insert},
    {"TEXT", &EntityReader::text},
    {"MTEXT", &EntityReader::mtext},
    {"CIRCLE", &EntityReader::circle},
    {"ARC", &EntityReader::arc},
    {"POLYLINE", &EntityReader::polyline},
    {"HATCH", &EntityReader::hatch},
    {"DIMENSION", &EntityReader::dimension},
    {"ARC_DIMENSION", &EntityReader::dimension},
    {"LARGE_RADIAL_DIMENSION", &EntityReader::dimension},
    {"POINT", &EntityReader::point},
    {"SOLID", &EntityReader::solid},
    {"TRACE", &EntityReader::solid},
    {"3DFACE", &EntityReader::face},
    {"ELLIPSE", &EntityReader::ellipse},
    {"SPLINE", &EntityReader::spline},
    {"HELIX", &EntityReader::spline},
    {"LEADER", &EntityReader::leader},
    {"ATTRIB", &EntityReader::attribute},
    {"ATTDEF", &EntityReader::attributeDefinition},
    {"ACAD_TABLE", &EntityReader::table},
    {"IMAGE", &EntityReader::image},
    {"MESH", &EntityReader::mesh},
    {"RAY", &EntityReader::ray},
    {"XLINE", &EntityReader::constructionLine},
    {"MULTILEADER", &EntityReader::multiLeader},
    {"MLINE", &EntityReader::multiLine},
    {"TOLERANCE", &EntityReader::tolerance},
    {"SHAPE", &EntityReader::shape},
    {"WIPEOUT", &EntityReader::wipeout},
    {"PDFUNDERLAY", &EntityReader::underlay},
    {"DWFUNDERLAY", &EntityReader::underlay},
    {"DGNUNDERLAY", &EntityReader::underlay},
    {"VIEWPORT", &EntityReader::viewport},
};

EntityReader::EntityReader(const GeometrySource& source, const LinetypePatterns& linetypes)
    : m_source(source),
      m_linetypes(linetypes),
      m_textStyles(source.file),
      m_textHeight(readPictureSwitches(source.file.headerTags()).textHeight)
{
    m_showsWipeoutFrames = readsWipeoutFrames();
}

void EntityReader::read(std::size_t index, bool inBlock, Definition& definition)
{
    m_index = index;
    m_inBlock = inBlock;
    m_owner = LayerId::None;
    m_definition = &definition;
    load(index);
    if (m_tags.integer(60) == 1)
        return; // The entity is invisible.
    const auto row = std::find_if(std::begin(kHandlers), std::end(kHandlers),
        [type = m_tags.type()](const HandlerRow& candidate) { return candidate.type == type; });
    if (row != std::end(kHandlers))
        (this->*row->handler)();
}

void EntityReader::load(std::size_t index)
{
    m_index = index;
    m_tags.load(m_source.file.tags(m_source.entities[index].range()));
    m_style = readStyle();
}

EntityStyle EntityReader::readStyle()
{
    EntityStyle style;
    const Entity& entity = m_source.entities[m_index];
    style.layer = entity.layer;
    style.owner = m_owner;
    if (m_owner != LayerId::None && style.layer == m_source.layerZero)
        style.layer = m_owner;
    // The tags are read backwards so that the first of several groups with the same code wins.
    for (auto tag = m_tags.end(); tag != m_tags.begin();)
        takeStyle(style, *--tag);
    // The tags still contain properties that an edit has since set to ByLayer.
    if (!entity.own.testFlag(OwnProperty::Color))
        style.color = EntityStyle::Color::ByLayer;
    if (!entity.own.testFlag(OwnProperty::Linetype))
        style.linetype = {};
    if (!entity.own.testFlag(OwnProperty::Lineweight))
        style.lineweight = {};
    if (!entity.own.testFlag(OwnProperty::Transparency))
        style.transparency = {};
    return style;
}

void EntityReader::takeStyle(EntityStyle& style, const Tag& tag)
{
    enum Code {
        Linetype = 6,
        LinetypeScale = 48,
        Index = 62,
        Lineweight = 370,
        True = 420,
        Transparency = 440
    };
    switch (tag.code) {
    case Linetype:
        style.linetype = linetypeOf(tag);
        return;
    case LinetypeScale:
        if (const double scale = tag.real(); scale > 0 && std::isfinite(scale))
            style.linetypeScale = static_cast<float>(scale);
        return;
    case Index:
        // Next to a true colour, the index is only a substitute.
        if (style.color != EntityStyle::Color::True)
            takeColor(style, withoutSign(tag.integer()));
        return;
    case True:
        style.color = EntityStyle::Color::True;
        style.value = PackedColor(tag.integer()).value;
        return;
    case Lineweight:
        style.lineweight = lineweightOf(tag.integer());
        return;
    case Transparency:
        style.transparency = transparencyOf(tag.integer());
        return;
    default:
        return;
    }
}

void EntityReader::takeColor(EntityStyle& style, qint64 index)
{
    style.color = index == kColorByBlock  ? EntityStyle::Color::ByBlock
                  : index < kColorByLayer ? EntityStyle::Color::Index
                                          : EntityStyle::Color::ByLayer;
    style.value = static_cast<quint32>(index & 0xff);
}

EntitySetting EntityReader::lineweightOf(qint64 stored)
{
    enum Stored { ByLayer = -1, ByBlock = -2 };
    constexpr int kWidest = 211;
    if (stored == ByLayer || stored == ByBlock)
        return {stored == ByLayer ? EntitySetting::Source::Layer : EntitySetting::Source::Block, 0};
    return {EntitySetting::Source::Own,
        static_cast<int>(std::clamp<qint64>(stored, kDefaultLineweight, kWidest))};
}

EntitySetting EntityReader::transparencyOf(qint64 stored)
{
    constexpr qint64 kByBlock = 0x01000000;
    if (stored == 0)
        return {};
    if (stored == kByBlock)
        return {EntitySetting::Source::Block, 0};
    return {EntitySetting::Source::Own, transparencyPercent(stored)};
}

EntitySetting EntityReader::linetypeOf(const Tag& name)
{
    const QByteArray spelled = bytesOf(name.trimmed());
    if (spelled == m_linetypeName)
        return m_linetype;
    m_linetypeName = spelled;
    const QString folded = foldedName(m_source.file.decoded(name.trimmed()));
    if (folded.isEmpty() || folded == QLatin1String("bylayer"))
        m_linetype = {};
    else if (folded == QLatin1String("byblock"))
        m_linetype = {EntitySetting::Source::Block, 0};
    else
        m_linetype = {EntitySetting::Source::Own, m_linetypes.find(folded)};
    return m_linetype;
}

Transform3 EntityReader::plane() const
{
    return Transform3::fromExtrusion(m_tags.extrusion());
}

Definition::Shape* EntityReader::addShape(
    Primitive::Shape shape, const Path& path, const Transform3& place)
{
    Path& vertices = m_definition->vertices;
    const std::size_t first = vertices.size();
    for (const Vec3& vertex : path) {
        const Vec3 mapped = place.map(vertex);
        if (mapped.isFinite())
            vertices.push_back(mapped);
        else if (std::isnan(vertex.x) && vertices.size() > first)
            vertices.push_back(pathBreak());
    }
    if (vertices.size() == first)
        return nullptr;
    Definition::Shape& added = m_definition->shapes.emplace_back();
    added.style = style();
    added.shape = shape;
    added.first = first;
    added.count = vertices.size() - first;
    return &added;
}

void EntityReader::addPolyline(const PolylinePicture& picture, const Transform3& place)
{
    if (Definition::Shape* lines = addShape(Primitive::Shape::Lines, picture.lines, place)) {
        lines->width = static_cast<float>(picture.width);
        lines->patternRestarts = picture.patternRestarts;
    }
    for (const Path& surface : picture.surfaces)
        addShape(Primitive::Shape::Fill, surface, place);
}

} // namespace drawing
