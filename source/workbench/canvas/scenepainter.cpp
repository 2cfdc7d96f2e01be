#include "scenepainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

using drawing::Box;
using drawing::GeometryGroup;
using drawing::Primitive;
using drawing::TextRun;

namespace {

constexpr int kOutlinePixels = 64;      ///< Size texts are outlined at; they are scaled from there.
constexpr int kMaxOutlines = 50000;     ///< Kept at most; more different texts start afresh.
constexpr double kReadablePixels = 2.5; ///< Lower texts are drawn as a bar.
constexpr double kTinyPixels = 0.8;
constexpr int kBatch = 8192;
constexpr double kHairline = 1.3;     ///< Lines thinner than these pixels are as thin as can be.
constexpr int kHundredths = 100;      ///< Of a millimetre, in which lineweights are stated.
constexpr double kMarginPixels = 100; ///< Around the view, where dashes are still cut.

QPen hairline(const QColor& color)
{
    QPen pen(color, 0);
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

} // namespace

ScenePainter::ScenePainter()
{
    m_font.setStyleHint(QFont::SansSerif);
    m_font.setPixelSize(kOutlinePixels);
    m_font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(m_font);
    m_capHeight = std::max(1.0, metrics.capHeight());
    m_descent = metrics.descent();
}

void ScenePainter::paint(QPainter& painter, const drawing::Geometry& geometry,
    const std::vector<GroupLook>& looks, const CanvasView& view)
{
    m_painter = &painter;
    m_view = view;
    m_visible = view.visibleBox();
    m_mark.emplace(geometry.switches, view.scale(), view.size().height());
    m_linetypeScale = geometry.switches.linetypeScale * view.scale();
    m_dasher.setSeen(QRectF(QPointF(), view.size())
                         .adjusted(-kMarginPixels, -kMarginPixels, kMarginPixels, kMarginPixels));
    paintFills(geometry, looks);
    for (std::size_t i = 0; i < geometry.groups.size(); ++i) {
        const GeometryGroup& group = geometry.groups[i];
        if (!looks[i].visible || !isSeen(group.bounds))
            continue;
        painter.setPen(penOf(looks[i]));
        paintLines(group, looks[i]);
        painter.setPen(hairline(looks[i].color));
        paintTexts(group, looks[i].color);
        flush();
    }
    m_painter = nullptr;
}

bool ScenePainter::isTiny(const Box& bounds) const
{
    return std::max(bounds.width(), bounds.height()) * m_view.scale() < kTinyPixels;
}

void ScenePainter::paintFills(
    const drawing::Geometry& geometry, const std::vector<GroupLook>& looks)
{
    struct Fill
    {
        quint32 sequence;
        std::size_t group;
        const Primitive* primitive;
    };
    std::vector<Fill> fills;
    for (std::size_t i = 0; i < geometry.groups.size(); ++i) {
        const GeometryGroup& group = geometry.groups[i];
        if (!looks[i].visible || !group.hasFills || !isSeen(group.bounds))
            continue;
        for (const Primitive& primitive : group.primitives) {
            if (primitive.shape == Primitive::Shape::Fill && isSeen(primitive.bounds))
                fills.push_back({primitive.sequence, i, &primitive});
        }
    }
    std::sort(fills.begin(), fills.end(),
        [](const Fill& a, const Fill& b) { return a.sequence < b.sequence; });
    for (const Fill& fill : fills) {
        m_painter->setPen(hairline(looks[fill.group].color));
        m_painter->setBrush(looks[fill.group].color);
        paintFill(geometry.groups[fill.group], *fill.primitive);
    }
    m_painter->setBrush(Qt::NoBrush);
}

void ScenePainter::paintFill(const GeometryGroup& group, const Primitive& primitive)
{
    if (isTiny(primitive.bounds)) {
        m_painter->drawPoint(m_view.toScreen(primitive.bounds.center()));
        return;
    }
    QPainterPath path;
    QPolygonF part;
    for (quint32 i = primitive.first; i < primitive.first + primitive.count; ++i) {
        const QPointF& vertex = group.vertices[i];
        if (!std::isnan(vertex.x())) {
            part.append(m_view.toScreen(vertex));
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
    // Round ends would fill the gaps of a linetype.
    pen.setCapStyle(look.linetype ? Qt::FlatCap : Qt::RoundCap);
    return pen;
}

void ScenePainter::paintLines(const GeometryGroup& group, const GroupLook& look)
{
    m_pattern = look.linetype.get();
    for (const Primitive& primitive : group.primitives) {
        if (primitive.shape == Primitive::Shape::Fill)
            continue;
        if (primitive.shape == Primitive::Shape::Dot && !m_mark->isDot) {
            paintPoint(group.vertices[primitive.first]);
            continue;
        }
        if (!isSeen(primitive.bounds))
            continue;
        if (isTiny(primitive.bounds))
            m_dots.append(m_view.toScreen(primitive.bounds.center()));
        else if (primitive.width * m_view.scale() >= kHairline)
            paintWide(group, primitive);
        else
            addLines(group, primitive);
        if (m_lines.size() + m_dots.size() + m_dasher.lines.size() > kBatch)
            flush();
    }
    flush();
    paintLetters(look.color);
}

void ScenePainter::paintWide(const GeometryGroup& group, const Primitive& primitive)
{
    flush();
    const QPen pen = m_painter->pen();
    QPen wide = pen;
    wide.setWidthF(primitive.width * m_view.scale());
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
    around.grow(m_mark->reach / m_view.scale());
    if (isSeen(around) && !m_mark->path.isEmpty())
        m_painter->drawPath(m_mark->path.translated(m_view.toScreen(place)));
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
        const QPointF pixel = m_view.toScreen(*vertex);
        const bool last = vertex + 1 == end || std::isnan(vertex[1].x());
        // A vertex less than a pixel on adds nothing that could be seen.
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

/// What the linetypes write along the lines.
void ScenePainter::paintLetters(const QColor& color)
{
    if (m_dasher.letters.empty())
        return;
    beginTexts(color);
    for (const LineDasher::Letters& letters : m_dasher.letters) {
        TextRun run;
        run.text = letters.text;
        run.origin = m_view.toDrawing(letters.place);
        const double height = letters.height / m_view.scale();
        // The view's y grows upwards.
        run.right = QPointF(std::cos(letters.angle), -std::sin(letters.angle)) * height;
        run.up = QPointF(-run.right.y(), run.right.x());
        if (letters.height >= kReadablePixels)
            paintText(run, false);
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

void ScenePainter::paintTexts(const GeometryGroup& group, const QColor& color)
{
    beginTexts(color);
    for (const TextRun& run : group.texts) {
        if (!isSeen(run.bounds))
            continue;
        const double pixels = std::hypot(run.up.x(), run.up.y()) * m_view.scale();
        if (isTiny(run.bounds))
            m_dots.append(m_view.toScreen(run.origin));
        else
            paintText(run, pixels < kReadablePixels);
    }
    m_painter->restore();
}

void ScenePainter::paintText(const TextRun& run, bool asBar)
{
    const Outline& outline = outlineOf(run.text);
    if (outline.width <= 0)
        return;
    const double stretch = run.fitWidth > 0 ? run.fitWidth * m_capHeight / outline.width : 1;
    const double x = -outline.width * static_cast<double>(run.horizontal) / 2;
    // By the order of TextRun::Vertical; outlines have y downwards.
    const double y[] = {0, -m_descent, m_capHeight / 2, m_capHeight};
    const QPointF right = run.right * (m_view.scale() / m_capHeight * stretch);
    const QPointF up = run.up * (m_view.scale() / m_capHeight);
    const QPointF origin = m_view.toScreen(run.origin);
    QTransform place(right.x(), -right.y(), -up.x(), up.y(), origin.x(), origin.y());
    place.translate(x, y[static_cast<int>(run.vertical)]);
    if (asBar) {
        m_lines.append(place.map(QLineF(0, -m_capHeight / 2, outline.width, -m_capHeight / 2)));
        return;
    }
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
