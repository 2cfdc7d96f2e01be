#include "scenepainter.h"

#include "canvasfont.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using drawing::Box;
using drawing::GeometryGroup;
using drawing::Primitive;
using drawing::TextRun;

namespace {

constexpr int kOutlinePixels = 64; ///< The size at which texts are outlined before they are scaled.
constexpr int kMaxOutlines = 50000;     ///< The cache is cleared when it exceeds this number.
constexpr double kReadablePixels = 2.5; ///< Texts of less height are drawn as bars.
constexpr double kTinyPixels = 0.8;
constexpr int kBatch = 8192;
constexpr double kHairline = 1.3; ///< Thinner lines, in pixels, are drawn as thin as possible.
constexpr int kHundredths = 100;  ///< Lineweights are stored in hundredths of a millimetre.
/// The margin around the view in which dashes are still calculated.
constexpr double kMarginPixels = 100;
/// The maximum number of pixels by which lines extend beyond their vertices.
constexpr int kPenMargin = 16;

QPen hairline(const QColor& color)
{
    QPen pen(color, 0);
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

} // namespace

ScenePainter::ScenePainter() : m_font(canvasFont(kOutlinePixels))
{
    const QFontMetricsF metrics(m_font);
    m_capHeight = std::max(1.0, metrics.capHeight());
    m_descent = metrics.descent();
}

void ScenePainter::paint(QPainter& painter, const ShownScene& scene, const CanvasView& view,
    const QRect& area, const std::atomic<bool>& isDropped)
{
    m_painter = &painter;
    m_isDropped = &isDropped;
    beginDots(area, painter.device()->devicePixelRatioF());
    const PlaneMap map(view);
    const double lineweightScale = m_lineweightScale;
    if (const drawing::Sheet* sheet = scene.scene().sheet.get()) {
        // On a sheet the size of a millimetre is known.
        if (m_lineweightScale > 0)
            m_lineweightScale = sheet->unitsPerMillimetre * view.scale();
        paintPaper(*sheet, map);
        for (const ShownScene::Window& window : scene.windows())
            paintWindow(window, *sheet, map, area);
    }
    paintSpace(scene, {map, view.scale(), double(view.size().height())}, area);
    m_lineweightScale = lineweightScale;
    m_painter = nullptr;
}

void ScenePainter::paintPaper(const drawing::Sheet& sheet, const PlaneMap& map)
{
    const auto frame = [&](const Box& box, Qt::PenStyle style) {
        if (box.isEmpty())
            return;
        m_painter->setPen(QPen(Qt::gray, 0, style));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawRect(
            QRectF(map.toPixel({box.minX, box.maxY}), map.toPixel({box.maxX, box.minY})));
    };
    frame(sheet.paper, Qt::SolidLine);
    frame(sheet.printable, Qt::DashLine);
}

void ScenePainter::paintWindow(const ShownScene::Window& window, const drawing::Sheet& sheet,
    const PlaneMap& map, const QRect& area)
{
    const QPolygonF outline = ::outlineOf(window.viewport, map);
    const QRectF bounds = outline.boundingRect();
    const QRectF seen = bounds.intersected(area);
    if (seen.isEmpty())
        return;
    QPainterPath clip;
    clip.addPolygon(outline);
    m_painter->save();
    m_painter->setClipPath(clip, Qt::IntersectClip);
    const PlaneMap inside = map.through(window.viewport);
    const double dashes = sheet.hasPaperLinetypes ? map.scale() : inside.scale();
    paintSpace(*window.scene, {inside, dashes, bounds.height()}, seen.toAlignedRect());
    m_painter->restore();
}

void ScenePainter::paintSpace(const ShownScene& scene, const Space& space, const QRect& area)
{
    m_map = space.map;
    m_visible =
        m_map.boxAround(area.marginsAdded({kPenMargin, kPenMargin, kPenMargin, kPenMargin}));
    m_dasher.setSeen(
        QRectF(area).adjusted(-kMarginPixels, -kMarginPixels, kMarginPixels, kMarginPixels));
    if (scene.partCount() > 0) { // All parts have the same switches.
        const drawing::PictureSwitches& switches = scene.scene().parts.front()->switches;
        m_mark.emplace(switches, m_map.scale(), space.height);
        m_linetypeScale = switches.linetypeScale * space.dashScale;
    }
    const std::vector<Mask> masks = masksOf(scene);
    m_from = 0;
    for (const Mask& mask : masks) {
        m_to = mask.order;
        paintRange(scene);
        m_painter->setPen(hairline(scene.background()));
        m_painter->setBrush(scene.background());
        paintFill(*mask.group, *mask.primitive);
        m_from = mask.order;
    }
    m_to = kLast;
    paintRange(scene);
}

/// The masks in view, in drawing order.
std::vector<ScenePainter::Mask> ScenePainter::masksOf(const ShownScene& scene) const
{
    constexpr std::size_t kMost = 256; ///< Distinguishing more of them would take too long.
    std::vector<Mask> masks;
    scene.forEachGroup([&](const ShownScene::Group& group) {
        if (!group.geometry.hasMasks || !isSeen(group.geometry.bounds))
            return;
        for (const Primitive& primitive : group.geometry.primitives) {
            const bool covers = primitive.shape == Primitive::Shape::Mask &&
                                isSeen(primitive.bounds) && !isTiny(primitive.bounds);
            if (covers && masks.size() < kMost)
                masks.push_back({primitive.order, &group.geometry, &primitive});
        }
    });
    std::sort(
        masks.begin(), masks.end(), [](const Mask& a, const Mask& b) { return a.order < b.order; });
    return masks;
}

void ScenePainter::paintRange(const ShownScene& scene)
{
    paintFills(scene);
    Box near = m_visible;
    near.grow(m_mark ? m_mark->reach / m_map.scale() : 0);
    scene.forEachGroupNear(near,
        [this](const ShownScene::Group& group, const Pieces& primitives, const Pieces& texts) {
            if (*m_isDropped || !isSeen(group.geometry.bounds))
                return;
            ++m_dotsOfGroup;
            m_painter->setPen(penOf(group.look));
            paintLines(group, primitives);
            m_painter->setPen(hairline(group.look.color));
            paintTexts(group, texts);
            flush();
        });
}

bool ScenePainter::isTiny(const Box& bounds) const
{
    return std::max(bounds.width(), bounds.height()) * m_map.scale() < kTinyPixels;
}

void ScenePainter::paintFills(const ShownScene& scene)
{
    struct Fill
    {
        const GeometryGroup* group;
        const Primitive* primitive;
        QColor color;
    };
    std::vector<Fill> fills;
    scene.forEachGroup([&](const ShownScene::Group& group) {
        if (!group.geometry.hasFills || !isSeen(group.geometry.bounds))
            return;
        for (const Primitive& primitive : group.geometry.primitives) {
            if (primitive.shape == Primitive::Shape::Fill && isSeen(primitive.bounds) &&
                isInRange(primitive.order))
                fills.push_back({&group.geometry, &primitive, group.look.color});
        }
    });
    std::sort(fills.begin(), fills.end(),
        [](const Fill& a, const Fill& b) { return a.primitive->order < b.primitive->order; });
    for (const Fill& fill : fills) {
        if (*m_isDropped)
            break;
        m_painter->setPen(hairline(fill.color));
        m_painter->setBrush(fill.color);
        paintFill(*fill.group, *fill.primitive);
    }
    m_painter->setBrush(Qt::NoBrush);
}

void ScenePainter::paintFill(const GeometryGroup& group, const Primitive& primitive)
{
    if (isTiny(primitive.bounds)) {
        m_painter->drawPoint(m_map.toPixel(primitive.bounds.center()));
        return;
    }
    QPainterPath path;
    QPolygonF part;
    for (quint32 i = primitive.first; i < primitive.first + primitive.count; ++i) {
        const QPointF& vertex = group.vertices[i];
        if (!std::isnan(vertex.x())) {
            part.append(m_map.toPixel(vertex));
            continue;
        }
        path.addPolygon(part);
        part.clear();
    }
    path.addPolygon(part);
    m_painter->drawPath(path);
}

QPen ScenePainter::penOf(const GroupLook& look) const
{
    QPen pen = hairline(look.color);
    const double pixels = look.lineweight * m_lineweightScale / kHundredths;
    if (pixels < kHairline)
        return pen;
    pen.setWidthF(pixels);
    pen.setJoinStyle(Qt::RoundJoin);
    // Round caps would fill the gaps of a linetype.
    pen.setCapStyle(look.linetype ? Qt::FlatCap : Qt::RoundCap);
    return pen;
}

void ScenePainter::paintLines(const ShownScene::Group& group, const Pieces& pieces)
{
    m_pattern = group.look.linetype.get();
    pieces.forEach(group.geometry.primitives,
        [&](const Primitive& primitive) { paintLine(group.geometry, primitive); });
    flush();
    paintLetters(group.look.color);
}

void ScenePainter::paintLine(const GeometryGroup& group, const Primitive& primitive)
{
    const bool isLine =
        primitive.shape != Primitive::Shape::Fill && primitive.shape != Primitive::Shape::Mask;
    if (!isLine || *m_isDropped || !isInRange(primitive.order))
        return;
    if (primitive.shape == Primitive::Shape::Dot && !m_mark->isDot) {
        paintPoint(group.vertices[primitive.first]);
        return;
    }
    if (!isSeen(primitive.bounds))
        return;
    if (isTiny(primitive.bounds))
        addTiny(m_map.toPixel(primitive.bounds.center()));
    else if (primitive.width * m_map.scale() >= kHairline)
        paintWide(group, primitive);
    else
        addLines(group, primitive);
    if (m_lines.size() + m_dots.size() + m_dasher.lines.size() > kBatch)
        flush();
}

/// Prepares the table of pixels that already have a dot.
void ScenePainter::beginDots(const QRect& area, qreal pixelRatio)
{
    constexpr int kReach = 2; // The pixels that a dot extends beyond its own.
    const QRect around = area.adjusted(-kReach, -kReach, kReach, kReach);
    m_pixelRatio = pixelRatio;
    m_dotsFrom = around.topLeft();
    m_dotsSize = QSize(around.size() * pixelRatio);
    m_dotted.assign(static_cast<std::size_t>(m_dotsSize.width()) *
                        static_cast<std::size_t>(m_dotsSize.height()),
        0);
    m_dotsOfGroup = 0;
}

/// Draws something smaller than a pixel as a dot. One dot per pixel and group is enough.
void ScenePainter::addTiny(const QPointF& at)
{
    const QPointF pixel = (at - m_dotsFrom) * m_pixelRatio;
    if (pixel.x() < 0 || pixel.y() < 0 || pixel.x() >= m_dotsSize.width() ||
        pixel.y() >= m_dotsSize.height())
        return;
    const auto index =
        static_cast<std::size_t>(pixel.y()) * static_cast<std::size_t>(m_dotsSize.width()) +
        static_cast<std::size_t>(pixel.x());
    if (std::exchange(m_dotted[index], m_dotsOfGroup) != m_dotsOfGroup)
        m_dots.append(at);
}

void ScenePainter::paintWide(const GeometryGroup& group, const Primitive& primitive)
{
    flush();
    const QPen pen = m_painter->pen();
    QPen wide = pen;
    wide.setWidthF(primitive.width * m_map.scale());
    wide.setCapStyle(Qt::FlatCap);
    wide.setJoinStyle(Qt::MiterJoin);
    m_painter->setPen(wide);
    addLines(group, primitive);
    flush();
    m_painter->setPen(pen);
}

void ScenePainter::paintPoint(const QPointF& place)
{
    Box around;
    around.add(place);
    around.grow(m_mark->reach / m_map.scale());
    if (isSeen(around) && !m_mark->path.isEmpty())
        m_painter->drawPath(m_mark->path.translated(m_map.toPixel(place)));
}

void ScenePainter::addLines(const GeometryGroup& group, const Primitive& primitive)
{
    const QPointF* const begin = group.vertices.data() + primitive.first;
    const QPointF* const end = begin + primitive.count;
    for (const QPointF* vertex = begin; vertex != end; ++vertex) {
        if (std::isnan(vertex->x())) {
            addPart(primitive);
            continue;
        }
        const QPointF pixel = m_map.toPixel(*vertex);
        const bool last = vertex + 1 == end || std::isnan(vertex[1].x());
        // A vertex less than a pixel away from the last one makes no visible difference.
        const bool near = !m_part.isEmpty() && std::abs(pixel.x() - m_part.last().x()) < 1 &&
                          std::abs(pixel.y() - m_part.last().y()) < 1;
        if (!near || last)
            m_part.append(pixel);
    }
    addPart(primitive);
}

void ScenePainter::addPart(const Primitive& primitive)
{
    if (m_pattern && m_part.size() > 1)
        m_dasher.dash(m_part, *m_pattern, primitive.linetypeScale * m_linetypeScale,
            primitive.patternRestarts);
    else if (m_part.size() == 1)
        m_dots.append(m_part.first());
    else if (m_part.size() == 2)
        m_lines.append(QLineF(m_part[0], m_part[1]));
    else if (!m_part.isEmpty())
        m_painter->drawPolyline(m_part);
    m_part.resize(0);
}

void ScenePainter::flush()
{
    m_painter->drawLines(m_lines);
    m_painter->drawPoints(m_dots.constData(), m_dots.size());
    m_lines.resize(0);
    m_dots.resize(0);
    m_painter->drawLines(m_dasher.lines);
    for (const QPolygonF& bend : m_dasher.bends)
        m_painter->drawPolyline(bend);
    m_painter->drawPoints(m_dasher.dots.constData(), m_dasher.dots.size());
    m_dasher.lines.resize(0);
    m_dasher.bends.resize(0);
    m_dasher.dots.resize(0);
}

/// Draws the texts of linetypes along the lines.
void ScenePainter::paintLetters(const QColor& color)
{
    if (m_dasher.letters.empty())
        return;
    beginTexts(color);
    for (const LineDasher::Letters& letters : m_dasher.letters) {
        const QPointF right = QPointF(std::cos(letters.angle), std::sin(letters.angle)) *
                              (letters.height / m_capHeight);
        if (letters.height >= kReadablePixels)
            paintOutline(
                outlineOf(letters.text), QTransform(right.x(), right.y(), -right.y(), right.x(),
                                             letters.place.x(), letters.place.y()));
    }
    m_dasher.letters.clear();
    m_painter->restore();
}

void ScenePainter::beginTexts(const QColor& color)
{
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(color);
}

void ScenePainter::paintTexts(const ShownScene::Group& group, const Pieces& pieces)
{
    if (group.geometry.texts.empty())
        return;
    beginTexts(group.look.color);
    pieces.forEach(group.geometry.texts, [this](const TextRun& run) {
        if (!isSeen(run.bounds) || *m_isDropped || !isInRange(run.order))
            return;
        const double pixels = std::hypot(run.up.x(), run.up.y()) * m_map.scale();
        if (isTiny(run.bounds))
            addTiny(m_map.toPixel(run.origin));
        else
            paintText(run, pixels < kReadablePixels);
    });
    m_painter->restore();
}

void ScenePainter::paintText(const TextRun& run, bool asBar)
{
    const Outline& outline = outlineOf(run.text);
    if (outline.width <= 0)
        return;
    const double stretch = run.fitWidth > 0 ? run.fitWidth * m_capHeight / outline.width : 1;
    const double x = -outline.width * static_cast<double>(run.horizontal) / 2;
    // In the order of TextRun::Vertical; y of the outlines points downwards.
    const double y[] = {0, -m_descent, m_capHeight / 2, m_capHeight};
    const QPointF right = m_map.ofDirection(run.right) * (stretch / m_capHeight);
    const QPointF down = m_map.ofDirection(run.up) * (-1 / m_capHeight);
    const QPointF origin = m_map.toPixel(run.origin);
    QTransform place(right.x(), right.y(), down.x(), down.y(), origin.x(), origin.y());
    place.translate(x, y[static_cast<int>(run.vertical)]);
    if (asBar) {
        m_lines.append(place.map(QLineF(0, -m_capHeight / 2, outline.width, -m_capHeight / 2)));
        return;
    }
    paintOutline(outline, place);
}

void ScenePainter::paintOutline(const Outline& outline, const QTransform& place)
{
    m_painter->setTransform(place);
    m_painter->drawPath(outline.path);
    m_painter->setTransform({});
}

const ScenePainter::Outline& ScenePainter::outlineOf(const QString& text)
{
    const auto known = m_outlines.constFind(text);
    if (known != m_outlines.constEnd())
        return known.value();
    if (m_outlines.size() >= kMaxOutlines)
        m_outlines.clear();
    Outline outline;
    outline.path.addText(0, 0, m_font, text);
    outline.path.setFillRule(Qt::WindingFill);
    outline.width = QFontMetricsF(m_font).horizontalAdvance(text);
    return m_outlines.insert(text, outline).value();
}
