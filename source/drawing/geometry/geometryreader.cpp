#include "geometryreader.h"

#include "entities/entitytable.h"
#include "entities/viewports.h"
#include "file/owntags.h"
#include "file/symbolname.h"
#include "geometryhatchreader.h"
#include "geometrymultileader.h"
#include "geometrymultiline.h"
#include "geometrypolyline.h"
#include "geometrytext.h"
#include "geometrytolerance.h"
#include "layers/colorindex.h"
#include "textcolumns.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace drawing {

namespace {

constexpr double kDegree = kPi / 180;
/// The default distance of lines of text, in text heights.
constexpr double kLineDistance = 5.0 / 3;
// Bits in the flags of polylines and splines.
constexpr qint64 kClosed = 1;
constexpr qint64 kContinuous = 128;

Transform3 turnedAt(const Vec3& origin, double degrees)
{
    return Transform3::translation(origin) * Transform3::rotation(degrees);
}

} // namespace

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

bool EntityReader::readsWipeoutFrames() const
{
    constexpr int kShown = 70;
    const Objects& objects = m_source.file.objects();
    const ObjectPlace* root = objects.root();
    const quint64 variables = root ? objects.entry(root->handle, "ACAD_WIPEOUT_VARS") : 0;
    const ObjectPlace* object = objects.find(variables);
    return !object || findOwn(m_source.file.tags(object->range), kShown).integer() != 0;
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

void EntityReader::line()
{
    addShape(Primitive::Shape::Lines, {m_tags.point(10), m_tags.point(11)});
}

void EntityReader::lwPolyline()
{
    std::vector<BulgeVertex> vertices;
    const double elevation = m_tags.number(38);
    const double width = m_tags.number(43);
    for (const Tag& tag : m_tags) {
        if (tag.code == 10) {
            vertices.push_back({{tag.real(), 0, elevation}, 0, width, width});
            continue;
        }
        if (vertices.empty())
            continue;
        if (tag.code == 20)
            vertices.back().point.y = tag.real();
        else if (tag.code == 40)
            vertices.back().startWidth = tag.real();
        else if (tag.code == 41)
            vertices.back().endWidth = tag.real();
        else if (tag.code == 42)
            vertices.back().bulge = tag.real();
    }
    const qint64 flags = m_tags.integer(70);
    addPolyline(pictureOf(vertices, flags & kClosed, flags & kContinuous), plane());
}

void EntityReader::polyline()
{
    Polyline polyline(m_tags);
    const auto& entities = m_source.entities.all();
    EntityTags vertex;
    for (std::size_t i = m_index + 1; i < entities.size() && entities[i].subEntity; ++i) {
        vertex.load(m_source.file.tags(entities[i].range()));
        polyline.add(vertex);
    }
    if (!polyline.isFlat()) {
        addShape(Primitive::Shape::Lines, polyline.lines());
        return;
    }
    const Transform3 place = polyline.isPlanar() ? plane() : Transform3();
    addPolyline(
        pictureOf(polyline.vertices(), polyline.isClosed(), polyline.isContinuous()), place);
}

void EntityReader::mesh()
{
    addShape(Primitive::Shape::Lines, meshEdges(m_tags));
}

void EntityReader::ray()
{
    addEndless(false);
}

void EntityReader::constructionLine()
{
    addEndless(true);
}

void EntityReader::addEndless(bool bothWays)
{
    const Vec3 from = m_tags.point(10);
    const Vec3 direction = m_tags.point(11);
    if (from.isFinite() && direction.isFinite())
        m_definition->endless.push_back({style(), from, direction, bothWays});
}

void EntityReader::circle()
{
    Path path;
    appendArc(path, m_tags.point(10), m_tags.number(40), 0, 2 * kPi);
    addShape(Primitive::Shape::Lines, path, plane());
}

void EntityReader::arc()
{
    const double start = m_tags.number(50) * kDegree;
    Path path;
    appendArc(path, m_tags.point(10), m_tags.number(40), start,
        forwardSweep(start, m_tags.number(51) * kDegree));
    addShape(Primitive::Shape::Lines, path, plane());
}

void EntityReader::ellipse()
{
    const Vec3 major = m_tags.point(11);
    const Vec3 minor = Vec3::cross(m_tags.extrusion().normalized(), major) * m_tags.number(40, 1);
    const double start = m_tags.number(41);
    Path path;
    appendEllipse(path, m_tags.point(10), major, minor, start,
        forwardSweep(start, m_tags.number(42, 2 * kPi)));
    addShape(Primitive::Shape::Lines, path);
}

void EntityReader::spline()
{
    Spline spline;
    spline.degree = static_cast<int>(std::clamp<qint64>(m_tags.integer(71, 3), 0, 100));
    spline.closed = m_tags.integer(70) & kClosed;
    for (const Tag& tag : m_tags) {
        Path& path = tag.code % 10 == 0 ? spline.controls : spline.fitPoints;
        if (tag.code == 40)
            spline.knots.push_back(tag.real());
        else if (tag.code == 41)
            spline.weights.push_back(tag.real());
        else if (tag.code == 10 || tag.code == 11)
            path.push_back({tag.real(), 0, 0});
        else if ((tag.code == 20 || tag.code == 21) && !path.empty())
            path.back().y = tag.real();
        else if ((tag.code == 30 || tag.code == 31) && !path.empty())
            path.back().z = tag.real();
    }
    Path path;
    appendSpline(path, spline);
    addShape(Primitive::Shape::Lines, path);
}

void EntityReader::point()
{
    // The marks of dimensions are always dots, whatever style other points have.
    const Tag* layer = m_tags.find(group::kLayer);
    const bool isMark =
        m_inBlock && layer && isNeverPlotted(m_source.file.decoded(layer->trimmed()));
    addShape(isMark ? Primitive::Shape::Lines : Primitive::Shape::Dot, {m_tags.point(10)});
}

void EntityReader::solid()
{
    // The third and fourth corners are stored in reverse order. A triangle repeats its last corner
    // or omits it.
    const Vec3 last = m_tags.find(13) ? m_tags.point(13) : m_tags.point(12);
    addShape(Primitive::Shape::Fill, {m_tags.point(10), m_tags.point(11), last, m_tags.point(12)},
        plane());
}

void EntityReader::face()
{
    const Vec3 last = m_tags.find(13) ? m_tags.point(13) : m_tags.point(12);
    const Vec3 corners[] = {m_tags.point(10), m_tags.point(11), m_tags.point(12), last};
    const qint64 hidden = m_tags.integer(70);
    Path path;
    for (int i = 0; i < 4; ++i) {
        if (hidden >> i & 1)
            continue;
        path.push_back(corners[i]);
        path.push_back(corners[(i + 1) % 4]);
        path.push_back(pathBreak());
    }
    addShape(Primitive::Shape::Lines, path);
}

void EntityReader::hatch()
{
    HatchReader reader;
    for (const Tag& tag : m_tags)
        reader.take(tag);
    reader.finish();
    const Transform3 place = plane() * Transform3::translation({0, 0, m_tags.number(30)});

    Path path;
    std::vector<HatchSegment> segments;
    if (!reader.isSolid() && appendPattern(segments, reader.loops(), reader.pattern())) {
        for (const HatchSegment& segment : segments)
            path.insert(path.end(), {segment.from, segment.to, pathBreak()});
        addShape(Primitive::Shape::Lines, path, place);
        return;
    }
    for (const Path& loop : reader.loops()) {
        path.insert(path.end(), loop.begin(), loop.end());
        path.push_back(loop.front());
        path.push_back(pathBreak());
    }
    addShape(reader.isSolid() ? Primitive::Shape::Fill : Primitive::Shape::Lines, path, place);
}

void EntityReader::leader()
{
    Path path;
    for (const Tag& tag : m_tags) {
        if (tag.code == 10)
            path.push_back({tag.real(), 0, 0});
        else if (tag.code == 20 && !path.empty())
            path.back().y = tag.real();
        else if (tag.code == 30 && !path.empty())
            path.back().z = tag.real();
    }
    addShape(Primitive::Shape::Lines, path);
    // The arrow is as long as the annotation's text is high, which is the default of dimension
    // styles.
    if (m_tags.integer(71, 1) != 0)
        addArrow(path, m_tags.number(40));
}

/// Adds an arrowhead at the beginning of a line if the line is long enough.
void EntityReader::addArrow(const Path& path, double size)
{
    if (path.size() < 2 || !(size > 0))
        return;
    const Vec3 way = path[1] - path[0];
    if (!(way.length() > 2 * size))
        return;
    const Vec3 along = way.normalized() * size;
    const Vec3 across = Vec3::cross({0, 0, 1}, along) * (1.0 / 6);
    addShape(Primitive::Shape::Fill, {path[0], path[0] + along + across, path[0] + along - across});
}

void EntityReader::multiLeader()
{
    const MultiLeader leader(m_tags);
    if (leader.hasBlock()) {
        Definition::Reference reference;
        reference.style = style();
        reference.isWhole = true;
        reference.place = leader.blockPlace();
        addBlock(leader.block(), reference);
    }
    for (const Path& line : leader.lines()) {
        addShape(Primitive::Shape::Lines, line);
        addArrow(line, leader.arrowSize());
    }
    const double height = leader.textHeight();
    if (!leader.hasText() || !(height > 0))
        return;
    const Vec3 x = leader.textDirection().normalized();
    const Transform3 place(x, Vec3::cross({0, 0, 1}, x), {0, 0, 1}, leader.textPlace());
    const TextStyle letters = m_textStyles.find(leader.textStyle());
    const double unit = height * letters.widthFactor;
    const QStringList lines =
        plainLines(m_source.file.decoded(leader.text()), leader.textWidth() / unit);
    addLines(lines, place, {height, 1, leader.textColumn(), 0, letters});
    if (leader.hasFrame())
        addTextFrame(lines, place, unit, height, leader);
}

/// Adds the frame around lines of text that extend downwards from their position.
void EntityReader::addTextFrame(const QStringList& lines, const Transform3& place, double unit,
    double height, const MultiLeader& leader)
{
    double widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, textWidth(line) * unit);
    const double gap = leader.textGap();
    const double total = height * (kLineDistance * (lines.size() - 1) + 1) + 2 * gap;
    const double left = -widest * leader.textColumn() / 2 - gap;
    addFrame(place.map({left, gap - total, 0}), place.mapDirection({widest + 2 * gap, 0, 0}),
        place.mapDirection({0, total, 0}));
}

EntityReader::ImageFrame EntityReader::imageFrame() const
{
    const double width = m_tags.number(13);
    const double height = m_tags.number(23);
    return {m_tags.point(10), m_tags.point(11) * width, m_tags.point(12) * height, width, height};
}

/// Draws the outline of an image. Its pixels are not shown.
void EntityReader::image()
{
    const ImageFrame frame = imageFrame();
    addFrame(frame.corner, frame.right, frame.up);
    addFileName(frame.corner, frame.right, frame.up, 340);
}

void EntityReader::addFrame(const Vec3& corner, const Vec3& right, const Vec3& up)
{
    addShape(Primitive::Shape::Lines,
        {corner, corner + right, corner + right + up, corner + up, corner});
}

void EntityReader::addFileName(const Vec3& corner, const Vec3& right, const Vec3& up, int pointer)
{
    constexpr int kFileName = 1;
    constexpr double kShare = 0.05; ///< Of the frame's height.
    const Tag* definition = m_tags.find(pointer);
    const ObjectPlace* object =
        definition ? m_source.file.objects().find(definition->handle()) : nullptr;
    if (!object)
        return;
    const QString path =
        m_source.file.decoded(findOwn(m_source.file.tags(object->range), kFileName).trimmed());
    const QString name = path.section(QRegularExpression(QStringLiteral("[/\\\\]")), -1);
    const double height = up.length() * kShare;
    const Transform3 place(
        right.normalized(), up.normalized(), {0, 0, 1}, corner + (right + up) * (kShare / 2));
    if (height > 0)
        addLines({name}, place, {height, 1, 0, 2, {}});
}

/// Covers what is below a wipeout; its edge is drawn when the drawing says so.
void EntityReader::wipeout()
{
    enum Boundary { Rectangle = 1 };
    constexpr qint64 kUsesBoundary = 4;
    const ImageFrame frame = imageFrame();
    Path pixels;
    for (const Tag& tag : m_tags) {
        if (tag.code == 14)
            pixels.push_back({tag.real(), 0, 0});
        else if (tag.code == 24 && !pixels.empty())
            pixels.back().y = tag.real();
    }
    if (m_tags.integer(71) == Rectangle && pixels.size() == 2)
        pixels = {
            pixels[0], {pixels[1].x, pixels[0].y, 0}, pixels[1], {pixels[0].x, pixels[1].y, 0}};
    if (pixels.size() < 3 || !(m_tags.integer(70, kUsesBoundary) & kUsesBoundary))
        pixels = {{-0.5, -0.5, 0}, {frame.width - 0.5, -0.5, 0},
            {frame.width - 0.5, frame.height - 0.5, 0}, {-0.5, frame.height - 0.5, 0}};
    Path outline;
    for (const Vec3& pixel : pixels)
        outline.push_back(frame.corner + m_tags.point(11) * (pixel.x + 0.5) +
                          m_tags.point(12) * (frame.height - pixel.y - 0.5));
    outline.push_back(outline.front());
    addShape(Primitive::Shape::Mask, outline);
    if (m_showsWipeoutFrames)
        addShape(Primitive::Shape::Lines, outline);
}

/// Draws the outline of the visible part of an underlay and its file name, but not the page.
void EntityReader::underlay()
{
    Path outline;
    for (const Tag& tag : m_tags) {
        if (tag.code == 11)
            outline.push_back({tag.real(), 0, 0});
        else if (tag.code == 21 && !outline.empty())
            outline.back().y = tag.real();
    }
    if (outline.size() == 2)
        outline = {outline[0], {outline[1].x, outline[0].y, 0}, outline[1],
            {outline[0].x, outline[1].y, 0}};
    const Transform3 place =
        plane() * turnedAt(m_tags.point(10), m_tags.number(50)) *
        Transform3::scaling({m_tags.number(41, 1), m_tags.number(42, 1), m_tags.number(43, 1)});
    if (!outline.empty())
        outline.push_back(outline.front());
    addShape(Primitive::Shape::Lines, outline, place);
    const bool hasSides = outline.size() >= 4;
    const Vec3 corner = place.map(hasSides ? outline[0] : Vec3());
    const Vec3 right = hasSides ? place.map(outline[1]) - corner : Vec3{m_textHeight, 0, 0};
    const Vec3 up = hasSides ? place.map(outline[3]) - corner : Vec3{0, m_textHeight * 20, 0};
    addFileName(corner, right, up, 340);
}

/// Draws the edge of a viewport. When the viewport has another outline, that entity draws the edge.
void EntityReader::viewport()
{
    constexpr qint64 kHasOutline = 0x10000;
    if (isSheetsOwn(m_source.file.tags(m_source.entities[m_index].range())) ||
        m_tags.integer(90) & kHasOutline)
        return;
    const Vec3 right{m_tags.number(40), 0, 0};
    const Vec3 up{0, m_tags.number(41), 0};
    addFrame(m_tags.point(10) - (right + up) * 0.5, right, up);
}

/// Draws a square in place of a shape, because shapes are stored in files of another format.
void EntityReader::shape()
{
    const double size = m_tags.number(40, 1);
    const Transform3 place = plane() * turnedAt(m_tags.point(10), m_tags.number(50)) *
                             Transform3::scaling({size * m_tags.number(41, 1), size, 1});
    addShape(
        Primitive::Shape::Lines, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 0}}, place);
}

void EntityReader::multiLine()
{
    const std::vector<Path> elements = multiLineElements(m_tags);
    const std::vector<EntityStyle> styles = multiLineStyles();
    for (std::size_t i = 0; i < elements.size(); ++i) {
        Definition::Shape* const shape = addShape(Primitive::Shape::Lines, elements[i]);
        if (shape && i < styles.size())
            shape->style = styles[i];
    }
}

/// What the lines look like by their style, which leaves to the entity what it does not say.
std::vector<EntityStyle> EntityReader::multiLineStyles()
{
    constexpr int kStyle = 340;
    constexpr int kOffset = 49; ///< Begins what is said of a line.
    const Tag* pointer = m_tags.find(kStyle);
    const ObjectPlace* object = pointer ? m_source.file.objects().find(pointer->handle()) : nullptr;
    std::vector<EntityStyle> styles;
    if (!object)
        return styles;
    OwnTags tags(m_source.file.tags(object->range));
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == kOffset)
            styles.push_back(style());
        if (styles.empty())
            continue;
        EntityStyle stated;
        takeStyle(stated, tag);
        const bool isColored =
            stated.color == EntityStyle::Color::Index || stated.color == EntityStyle::Color::True;
        if (isColored) {
            styles.back().color = stated.color;
            styles.back().value = stated.value;
        }
        if (stated.linetype.source == EntitySetting::Source::Own)
            styles.back().linetype = stated.linetype;
    }
    return styles;
}

/// Draws a table by its block, which contains the whole picture.
void EntityReader::table()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    const Vec3 x = m_tags.find(11) ? m_tags.point(11).normalized() : Vec3{1, 0, 0};
    const Vec3 z = m_tags.extrusion().normalized();
    Definition::Reference reference;
    reference.style = style();
    reference.isWhole = true;
    reference.place = Transform3(x, Vec3::cross(z, x), z, m_tags.point(10));
    addReference(m_source.file.decoded(name->trimmed()), reference);
}

/// Draws a tolerance frame with cells twice as high as the text. It begins at the middle of the
/// left side of the first row.
void EntityReader::tolerance()
{
    const Tag* value = m_tags.find(1);
    if (!value)
        return;
    const double height = m_textHeight;
    const Vec3 x = m_tags.find(11) ? m_tags.point(11).normalized() : Vec3{1, 0, 0};
    const Vec3 z = m_tags.extrusion().normalized();
    const Transform3 place(x, Vec3::cross(z, x), z, m_tags.point(10));
    double bottom = -height;
    for (const QStringList& row : toleranceCells(m_source.file.decoded(value->text()))) {
        double left = 0;
        for (const QString& cell : row) {
            const double width = (textWidth(plainText(cell)) + 1) * height;
            addFrame(place.map({left, bottom, 0}), place.mapDirection({width, 0, 0}),
                place.mapDirection({0, 2 * height, 0}));
            addLines({plainText(cell)},
                place * Transform3::translation({left + width / 2, bottom + height, 0}),
                {height, 1, 1, 1, {}});
            left += width;
        }
        bottom -= 2 * height;
    }
}

TextStyle EntityReader::textStyle() const
{
    constexpr int kStyle = 7;
    const Tag* name = m_tags.find(kStyle);
    return name ? m_textStyles.find(m_source.file.decoded(name->trimmed())) : TextStyle();
}

void EntityReader::addBlock(quint64 record, Definition::Reference reference)
{
    for (const ByteRange& candidate : m_source.file.table(TableKind::BlockRecord).records) {
        const TagReader tags = m_source.file.tags(candidate);
        if (ownHandle(tags) != record)
            continue;
        addReference(m_source.file.decoded(findOwn(tags, group::kName).trimmed()), reference);
        return;
    }
}

void EntityReader::text()
{
    const Tag* value = m_tags.find(1);
    addText(value ? m_source.file.decoded(value->text()) : QString(),
        static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(73), 0, 3)));
}

void EntityReader::attribute()
{
    constexpr int kInvisible = 1;
    const Tag* value = m_tags.find(1);
    if (value && !(m_tags.integer(70) & kInvisible))
        addText(m_source.file.decoded(value->text()),
            static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(74), 0, 3)));
}

void EntityReader::attributeDefinition()
{
    constexpr int kInvisible = 1;
    constexpr int kConstant = 2;
    const qint64 flags = m_tags.integer(70);
    if (flags & kInvisible || (m_inBlock && !(flags & kConstant)))
        return;
    const Tag* value = m_tags.find(flags & kConstant ? 1 : 2);
    if (value)
        addText(m_source.file.decoded(value->text()),
            static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(74), 0, 3)));
}

/// Adds a line of text with the properties of a TEXT.
bool EntityReader::addText(const QString& value, TextRun::Vertical vertical)
{
    enum Justification { Left, Center, Right, Aligned, Middle, Fit };
    enum Mirror { Backward = 2, UpsideDown = 4 };
    const qint64 justification = m_tags.integer(72);
    const bool atFirst = (justification == Left && vertical == TextRun::Vertical::Baseline) ||
                         justification == Aligned || justification == Fit || !m_tags.find(11);

    Definition::Text text;
    text.style = style();
    text.run.text = plainText(value);
    text.run.vertical = justification == Middle ? TextRun::Vertical::Middle : vertical;
    if (justification == Center || justification == Middle)
        text.run.horizontal = TextRun::Horizontal::Center;
    else if (justification == Right)
        text.run.horizontal = TextRun::Horizontal::Right;

    double rotation = m_tags.number(50);
    double height = m_tags.number(40, 1);
    const Vec3 span = m_tags.point(11) - m_tags.point(10);
    const double length = std::hypot(span.x, span.y);
    if ((justification == Aligned || justification == Fit) && m_tags.find(11) && length > 0) {
        rotation = std::atan2(span.y, span.x) / kDegree;
        if (justification == Aligned)
            height = length / std::max(textWidth(text.run.text), 1.0);
        text.run.fitWidth = height > 0 ? length / height : 0;
    }
    const qint64 mirror = m_tags.integer(71);
    const double stretch = text.run.fitWidth > 0 ? 1 : m_tags.number(41, 1);
    const double slant = std::tan(m_tags.number(51) * kDegree);
    const Vec3 right{mirror & Backward ? -height : height, 0, 0};
    const Vec3 up{slant * height, mirror & UpsideDown ? -height : height, 0};

    const Transform3 place = plane() * turnedAt(m_tags.point(atFirst ? 10 : 11), rotation);
    text.origin = place.map({});
    text.right = place.mapDirection(right * stretch);
    text.up = place.mapDirection(up);
    const bool usable = text.origin.isFinite() && text.right.isFinite() && text.up.isFinite();
    if (!usable || height <= 0 || text.run.text.trimmed().isEmpty())
        return false;
    m_definition->texts.push_back(std::move(text));
    return true;
}

void EntityReader::mtext()
{
    std::string_view chunk;
    QString value;
    for (const Tag& tag : m_tags) {
        if (tag.code == 3)
            value += m_source.file.decoded(tag.text());
        else if (tag.code == 1)
            chunk = tag.text();
    }
    value += m_source.file.decoded(chunk);

    const double height = m_tags.number(40, 1);
    if (!(height > 0) || !std::isfinite(height))
        return;
    // There may be both a direction and an angle; the later one counts.
    const Tag* direction = m_tags.find(11);
    const Tag* angle = m_tags.find(50);
    Transform3 place = plane() * Transform3::rotation(m_tags.number(50));
    if (direction && (!angle || angle->first < direction->first)) {
        const Vec3 x = m_tags.point(11).normalized();
        const Vec3 z = m_tags.extrusion().normalized();
        place = Transform3(x, Vec3::cross(z, x), z, {});
    }
    place = Transform3::translation(m_tags.point(10)) * place;
    const auto attachment = static_cast<int>(std::clamp<qint64>(m_tags.integer(71, 1), 1, 9)) - 1;
    const TextStyle letters = textStyle();
    const TextColumns columns =
        readTextColumns(m_source.file.tags(m_source.entities[m_index].range()));
    const double width = columns.count > 1 ? columns.width : m_tags.number(41);
    const QStringList lines = plainLines(value, width / (height * letters.widthFactor));
    const Paragraph paragraph{
        height, m_tags.number(44, 1), attachment % 3, attachment / 3, letters};
    if (columns.count > 1)
        addColumns(lines, columns, place, paragraph);
    else
        addLines(lines, place, paragraph);
}

/// All hang from where the longest one begins.
void EntityReader::addColumns(const QStringList& lines, const TextColumns& columns,
    const Transform3& place, Paragraph paragraph)
{
    const double spacing = paragraph.height * kLineDistance * paragraph.spacing;
    const std::vector<QStringList> parts = columns.split(lines, spacing);
    int longest = 0;
    for (const QStringList& part : parts)
        longest = std::max(longest, part.size());
    const double top = (spacing * (longest - 1) + paragraph.height) * paragraph.row / 2;
    paragraph.row = 0;
    const double shift =
        (columns.width - columns.totalWidth()) * paragraph.column / 2; // Of the first one's place.
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double left = columns.leftOf(static_cast<int>(i)) + shift;
        addLines(parts[i], place * Transform3::translation({left, top, 0}), paragraph);
    }
}

void EntityReader::addLines(
    const QStringList& lines, const Transform3& place, const Paragraph& paragraph)
{
    const double spacing = paragraph.height * kLineDistance * paragraph.spacing;
    const double total = spacing * (lines.size() - 1) + paragraph.height;
    if (!place.isFinite() || !std::isfinite(total))
        return;
    double baseline = total * paragraph.row / 2 - paragraph.height;
    for (const QString& line : lines) {
        addLine(line, place * Transform3::translation({0, baseline, 0}), paragraph);
        baseline -= spacing;
    }
}

/// Adds a line of text whose baseline goes through the position.
void EntityReader::addLine(const QString& line, const Transform3& place, const Paragraph& paragraph)
{
    const std::vector<TextPiece> pieces = piecesOf(line);
    if (pieces.size() == 1 && !pieces.front().isStack) {
        addPiece(line, place, paragraph);
        return;
    }
    Paragraph part = paragraph;
    part.column = 0;
    const double unit = paragraph.height * paragraph.style.widthFactor;
    double left = -textWidth(line) * unit * paragraph.column / 2;
    for (const TextPiece& piece : pieces) {
        const Transform3 start = place * Transform3::translation({left, 0, 0});
        if (piece.isStack)
            addStack(piece, start, part);
        else
            addPiece(piece.text, start, part);
        left += piece.width * unit;
    }
}

void EntityReader::addStack(const TextPiece& piece, const Transform3& place, Paragraph paragraph)
{
    // The lower text stands below the baseline; the upper one is raised accordingly.
    constexpr double kBelow = -0.2;
    constexpr double kAbove = 0.65;
    constexpr double kBar = (kBelow + stack::kHeight + kAbove) / 2;
    const double height = paragraph.height;
    paragraph.height *= stack::kHeight;
    addPiece(piece.text, place * Transform3::translation({0, kAbove * height, 0}), paragraph);
    addPiece(piece.below, place * Transform3::translation({0, kBelow * height, 0}), paragraph);
    const double width = piece.width * height * paragraph.style.widthFactor;
    if (piece.hasBar)
        addShape(Primitive::Shape::Lines,
            {place.map({0, kBar * height, 0}), place.map({width, kBar * height, 0})});
}

void EntityReader::addPiece(
    const QString& piece, const Transform3& place, const Paragraph& paragraph)
{
    if (piece.trimmed().isEmpty())
        return;
    const double slant = std::tan(paragraph.style.oblique * kDegree);
    Definition::Text text;
    text.style = style();
    text.run.text = piece;
    text.run.horizontal = static_cast<TextRun::Horizontal>(paragraph.column);
    text.origin = place.map({});
    text.right = place.mapDirection({paragraph.height * paragraph.style.widthFactor, 0, 0});
    text.up = place.mapDirection({paragraph.height * slant, paragraph.height, 0});
    m_definition->texts.push_back(std::move(text));
}

void EntityReader::insert()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    const auto bounded = [](qint64 count) {
        return static_cast<int>(std::clamp<qint64>(count, 1, std::numeric_limits<int>::max()));
    };
    const auto factor = [this](int code) {
        const double value = m_tags.number(code, 1);
        return value != 0 ? value : 1;
    };
    Definition::Reference reference;
    reference.style = style();
    reference.columns = bounded(m_tags.integer(70, 1));
    reference.rows = bounded(m_tags.integer(71, 1));
    const Transform3 frame = plane() * turnedAt(m_tags.point(10), m_tags.number(50));
    reference.columnStep = frame.mapDirection({m_tags.number(44), 0, 0});
    reference.rowStep = frame.mapDirection({0, m_tags.number(45), 0});
    reference.place = frame * Transform3::scaling({factor(41), factor(42), factor(43)});
    addReference(m_source.file.decoded(name->trimmed()), reference);
    attributes();
}

void EntityReader::attributes()
{
    const auto& entities = m_source.entities.all();
    m_owner = entities[m_index].layer;
    while (m_index + 1 < entities.size() && entities[m_index + 1].subEntity) {
        ++m_index;
        if (entities[m_index].removed)
            continue;
        load(m_index);
        if (m_tags.type() == "ATTRIB" && m_tags.integer(60) != 1)
            attribute();
    }
}

/// Draws a dimension by its block, which is already at the right position.
void EntityReader::dimension()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    Definition::Reference reference;
    reference.style = style();
    reference.isWhole = true;
    reference.place = Transform3::translation(plane().map(m_tags.point(12)));
    addReference(m_source.file.decoded(name->trimmed()), reference);
}

void EntityReader::addReference(const QString& name, Definition::Reference reference)
{
    const int block = m_source.entities.block(name);
    if (block < 0)
        return;
    const Block& definition = m_source.entities.blocks()[static_cast<std::size_t>(block)];
    reference.block = block;
    reference.place =
        reference.place * Transform3::translation({-definition.baseX, -definition.baseY, 0});
    const bool finite = reference.place.isFinite() && reference.columnStep.isFinite() &&
                        reference.rowStep.isFinite();
    if (finite)
        m_definition->references.push_back(reference);
}

} // namespace drawing
