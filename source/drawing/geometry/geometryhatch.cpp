#include "geometryhatch.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

/// The limit for one hatch. A finer pattern looks grey anyway.
constexpr std::size_t kMaxSegments = 20000;

/// A crossing of a boundary edge with a numbered pattern line.
struct Crossing
{
    qint64 line;
    double along;
};

/// The coordinate system of one family of lines: the position along a line, and the number of the
/// line.
class Family
{
public:
    explicit Family(const PatternLine& pattern) : m_pattern(pattern)
    {
        const double angle = pattern.angle * kDegree;
        m_direction = {std::cos(angle), std::sin(angle), 0};
        m_spacing = m_direction.x * pattern.offset.y - m_direction.y * pattern.offset.x;
        m_shift = m_direction.x * pattern.offset.x + m_direction.y * pattern.offset.y;
        for (const double dash : pattern.dashes)
            m_period += std::abs(dash);
    }

    bool usable() const
    {
        return std::isfinite(m_spacing) && std::abs(m_spacing) > 1e-12 &&
               m_pattern.base.isFinite() && std::isfinite(m_period);
    }

    bool collect(std::vector<Crossing>& crossings, const Vec3& from, const Vec3& to) const
    {
        const double lineA = lineOf(from);
        const double lineB = lineOf(to);
        const double low = std::ceil(std::min(lineA, lineB));
        // The range is half open, so shared ends count once.
        const double high = std::ceil(std::max(lineA, lineB));
        if (!(high - low < double(kMaxSegments - std::min(crossings.size(), kMaxSegments))) ||
            std::abs(low) > 1e15)
            return false;
        const double alongA = alongOf(from);
        const double alongB = alongOf(to);
        for (double line = low; line < high; ++line) {
            const double share = (line - lineA) / (lineB - lineA);
            crossings.push_back({static_cast<qint64>(line), alongA + (alongB - alongA) * share});
        }
        return true;
    }

    /// Adds the part of a line between two crossings, divided into its dashes.
    bool addDashes(std::vector<HatchSegment>& segments, qint64 line, double from, double to) const
    {
        if (m_period <= 0) {
            segments.push_back({point(line, from), point(line, to)});
            return segments.size() < kMaxSegments;
        }
        const double start = m_shift * static_cast<double>(line);
        const double first = start + std::floor((from - start) / m_period) * m_period;
        const double periods = std::ceil((to - first) / m_period);
        if (!(periods * static_cast<double>(m_pattern.dashes.size()) < kMaxSegments))
            return false;
        for (int period = 0; period < periods; ++period) {
            double at = first + period * m_period;
            for (const double dash : m_pattern.dashes) {
                const double end = at + std::abs(dash);
                if (dash >= 0 && end >= from && at <= to)
                    segments.push_back(
                        {point(line, std::max(at, from)), point(line, std::min(end, to))});
                at = end;
            }
        }
        return segments.size() < kMaxSegments;
    }

private:
    double lineOf(const Vec3& p) const
    {
        const Vec3 d = p - m_pattern.base;
        return (m_direction.x * d.y - m_direction.y * d.x) / m_spacing;
    }

    double alongOf(const Vec3& p) const
    {
        const Vec3 d = p - m_pattern.base;
        return m_direction.x * d.x + m_direction.y * d.y;
    }

    Vec3 point(qint64 line, double along) const
    {
        const double across = static_cast<double>(line) * m_spacing;
        return {m_pattern.base.x + m_direction.x * along - m_direction.y * across,
            m_pattern.base.y + m_direction.y * along + m_direction.x * across, 0};
    }

    const PatternLine& m_pattern;
    Vec3 m_direction;
    double m_spacing = 0;
    double m_shift = 0;
    double m_period = 0;
};

bool collectCrossings(
    std::vector<Crossing>& crossings, const Family& family, const std::vector<Path>& boundary)
{
    for (const Path& path : boundary) {
        for (std::size_t i = 0; i < path.size(); ++i) {
            if (!family.collect(crossings, path[i], path[(i + 1) % path.size()]))
                return false;
        }
    }
    std::sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) {
        return a.line != b.line ? a.line < b.line : a.along < b.along;
    });
    return true;
}

bool appendFamily(std::vector<HatchSegment>& segments, const std::vector<Path>& boundary,
    const PatternLine& pattern)
{
    const Family family(pattern);
    if (!family.usable())
        return false;
    std::vector<Crossing> crossings;
    if (!collectCrossings(crossings, family, boundary))
        return false;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        const Crossing& in = crossings[i];
        const Crossing& out = crossings[i + 1];
        if (in.line != out.line)
            continue; // The other crossing was lost to rounding.
        if (!family.addDashes(segments, in.line, in.along, out.along))
            return false;
        ++i;
    }
    return true;
}

} // namespace

bool appendPattern(std::vector<HatchSegment>& segments, const std::vector<Path>& boundary,
    const std::vector<PatternLine>& pattern)
{
    std::vector<HatchSegment> found;
    for (const PatternLine& line : pattern) {
        if (!appendFamily(found, boundary, line))
            return false;
    }
    segments.insert(segments.end(), found.begin(), found.end());
    return !found.empty();
}

} // namespace drawing
