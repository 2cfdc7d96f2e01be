#include "linedasher.h"

#include "geometry/geometrymath.h"

#include <algorithm>
#include <cmath>

using drawing::LinetypePattern;

namespace {

/// Elements with a smaller average length cannot be distinguished.
constexpr double kFinestElement = 1;

double lengthOf(const QPointF& way)
{
    return std::hypot(way.x(), way.y());
}

} // namespace

void LineDasher::dash(
    const QPolygonF& line, const LinetypePattern& pattern, double scale, bool restarts)
{
    m_pattern = &pattern;
    m_scale = scale;
    if (!restarts)
        return dashRun(line.constData(), line.size());
    for (int i = 0; i + 1 < line.size(); ++i)
        dashRun(line.constData() + i, 2);
}

void LineDasher::dashRun(const QPointF* vertices, int count)
{
    m_length = 0;
    for (int i = 0; i + 1 < count; ++i)
        m_length += lengthOf(vertices[i + 1] - vertices[i]);
    fit(m_length, count > 2 && vertices[0] == vertices[count - 1]);
    double start = 0;
    for (int i = 0; i + 1 < count; ++i) {
        const double length = lengthOf(vertices[i + 1] - vertices[i]);
        if (length > 0)
            dashSegment(vertices[i], vertices[i + 1], start, length);
        start += length;
    }
    finishPiece();
}

void LineDasher::fit(double length, bool isClosed)
{
    const double period = m_pattern->length * m_scale;
    const double first = std::max(0.0, m_pattern->elements.front().length) * m_scale;
    m_unit = m_scale;
    m_lead = 0;
    m_phase = 0;
    const auto elements = static_cast<double>(m_pattern->elements.size());
    if (!(period >= kFinestElement * elements) || length < period) {
        m_lead = length; // The whole run is one dash.
        return;
    }
    if (isClosed) {
        m_unit *= length / (std::round(length / period) * period);
    } else if (first > 0) {
        m_lead = (length - std::floor(length / period) * period + first) / 2;
        m_phase = first - m_lead;
    }
}

void LineDasher::dashSegment(const QPointF& from, const QPointF& to, double start, double length)
{
    drawing::LineRange range;
    const drawing::Box seen{m_seen.left(), m_seen.top(), m_seen.right(), m_seen.bottom()};
    if (!range.clip(from, to - from, seen) || range.low == range.high)
        return;
    m_from = from;
    m_way = (to - from) / length;
    m_start = start;
    const double begin = start + range.low * length;
    const double end = start + range.high * length;
    addPiece(begin, std::min(end, m_lead));
    repeat(std::max(begin, m_lead), std::min(end, m_length - m_lead));
    addPiece(std::max(begin, std::max(m_lead, m_length - m_lead)), end);
}

/// Adds the pattern's elements between two positions of a segment.
void LineDasher::repeat(double from, double to)
{
    const double period = m_pattern->length * m_unit;
    double at = std::floor((from + m_phase) / period) * period - m_phase;
    while (at < to) {
        const double before = at;
        for (const LinetypePattern::Element& element : m_pattern->elements) {
            take(element, at, from, to);
            at += std::abs(element.length) * m_unit;
        }
        if (!(at > before))
            // At this distance from the origin, a repetition is too small to change the number.
            return;
    }
}

/// Adds the part of an element beginning at `at` that lies between two positions.
void LineDasher::take(const LinetypePattern::Element& element, double at, double from, double to)
{
    const double end = at + std::abs(element.length) * m_unit;
    if (element.length > 0)
        addPiece(std::max(at, from), std::min(end, to));
    else if (element.length == 0 && at >= from && at < to)
        dots.append(pointAt(at));
    if (element.text.isEmpty() || end < from || end >= to)
        return;
    const double ahead = std::atan2(m_way.y(), m_way.x());
    const double turned = element.isUpright ? 0 : ahead;
    const QPointF aside(m_way.y(), -m_way.x()); // To the left of the line.
    letters.push_back(
        {element.text, pointAt(end + element.along * m_unit) + aside * (element.across * m_unit),
            turned - element.rotation * drawing::kDegree, element.height * m_unit});
}

/// Adds a piece of a dash, and joins it to the previous piece if that ended here.
void LineDasher::addPiece(double from, double to)
{
    if (!(from < to))
        return;
    constexpr double kSame = 1e-6;
    if (m_piece.isEmpty() || std::abs(from - m_pieceEnd) > kSame) {
        finishPiece();
        m_piece.append(pointAt(from));
    }
    m_piece.append(pointAt(to));
    m_pieceEnd = to;
}

void LineDasher::finishPiece()
{
    if (m_piece.size() == 2)
        lines.append(QLineF(m_piece[0], m_piece[1]));
    else if (!m_piece.isEmpty())
        bends.append(m_piece);
    m_piece.resize(0);
}
