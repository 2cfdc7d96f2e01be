#include "geometryreader.h"

#include "entities/entitytable.h"
#include "file/groupcode.h"
#include "file/owntags.h"
#include "geometryhatchreader.h"
#include "geometrymultileader.h"
#include "geometrymultiline.h"
#include "geometrypolyline.h"
#include "geometrytext.h"

#include <algorithm>

namespace drawing {

namespace {

// Bits in the flags of polylines and splines.
constexpr qint64 kClosed = 1;
constexpr qint64 kContinuous = 128;

} // namespace

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
        // A helix is stored as a spline, followed by its axis and turns in the same groups.
        if (tag.code == group::kSubclass && tag.trimmed() == "AcDbHelix")
            break;
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

} // namespace drawing
