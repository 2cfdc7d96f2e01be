#include "geometrymath.h"

#include <algorithm>
#include <cmath>

namespace drawing {

double Vec3::length() const
{
    return std::sqrt(x * x + y * y + z * z);
}

Vec3 Vec3::normalized() const
{
    const double size = length();
    return size > 0 ? *this * (1 / size) : *this;
}

Vec3 Vec3::cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Transform3::Transform3(const Vec3& x, const Vec3& y, const Vec3& z, const Vec3& origin)
    : m_x(x),
      m_y(y),
      m_z(z),
      m_origin(origin)
{
}

Transform3 Transform3::fromExtrusion(const Vec3& normal)
{
    // For a direction this close to the world's z axis, the reference axis is the world's y axis.
    constexpr double kNearZ = 1.0 / 64;
    if (!normal.isFinite() || normal.length() == 0)
        return {};
    const Vec3 z = normal.normalized();
    const bool nearZ = std::abs(z.x) < kNearZ && std::abs(z.y) < kNearZ;
    const Vec3 x = Vec3::cross(nearZ ? Vec3{0, 1, 0} : Vec3{0, 0, 1}, z).normalized();
    return {x, Vec3::cross(z, x), z, {}};
}

Transform3 Transform3::translation(const Vec3& by)
{
    return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, by};
}

Transform3 Transform3::scaling(const Vec3& factors)
{
    return {{factors.x, 0, 0}, {0, factors.y, 0}, {0, 0, factors.z}, {}};
}

Transform3 Transform3::rotation(double degrees)
{
    const double angle = degrees * kDegree;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{c, s, 0}, {-s, c, 0}, {0, 0, 1}, {}};
}

Transform3 Transform3::turnedAt(const Vec3& origin, double degrees)
{
    return translation(origin) * rotation(degrees);
}

bool Transform3::isFinite() const
{
    return m_x.isFinite() && m_y.isFinite() && m_z.isFinite() && m_origin.isFinite();
}

double Transform3::planarScale() const
{
    return std::sqrt(m_x.length() * m_y.length());
}

Transform3 operator*(const Transform3& outer, const Transform3& inner)
{
    return {outer.mapDirection(inner.m_x), outer.mapDirection(inner.m_y),
        outer.mapDirection(inner.m_z), outer.map(inner.m_origin)};
}

void Box::grow(double by)
{
    minX -= by;
    minY -= by;
    maxX += by;
    maxY += by;
}

bool LineRange::clip(const QPointF& from, const QPointF& way, const Box& box)
{
    const auto narrow = [this](double start, double step, double least, double greatest) {
        if (step == 0)
            return start >= least && start <= greatest;
        const double a = (least - start) / step;
        const double b = (greatest - start) / step;
        low = std::max(low, std::min(a, b));
        high = std::min(high, std::max(a, b));
        return low <= high;
    };
    return narrow(from.x(), way.x(), box.minX, box.maxX) &&
           narrow(from.y(), way.y(), box.minY, box.maxY);
}

} // namespace drawing
