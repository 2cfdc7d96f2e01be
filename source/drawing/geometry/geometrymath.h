#pragma once

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace drawing {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180; ///< In radians.

/// A point or a direction in drawing units.
struct Vec3
{
    double x = 0;
    double y = 0;
    double z = 0;

    /// Not NaN, not infinite, and small enough that the product of two coordinates is finite, too.
    bool isFinite() const
    {
        constexpr double kLargest = 1e150;
        return std::abs(x) < kLargest && std::abs(y) < kLargest && std::abs(z) < kLargest;
    }
    double length() const;
    Vec3 normalized() const; ///< The null vector stays unchanged.
    static Vec3 cross(const Vec3& a, const Vec3& b);
};

inline Vec3 operator+(const Vec3& a, const Vec3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vec3 operator-(const Vec3& a, const Vec3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Vec3 operator*(const Vec3& a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

/// An affine transformation of space, stored as the images of the three axes and of the origin.
class Transform3
{
public:
    Transform3() = default;
    Transform3(const Vec3& x, const Vec3& y, const Vec3& z, const Vec3& origin);

    /// Transforms from the object coordinate system of an extrusion direction to world coordinates.
    static Transform3 fromExtrusion(const Vec3& normal);
    static Transform3 translation(const Vec3& by);
    static Transform3 scaling(const Vec3& factors);
    static Transform3 rotation(double degrees); ///< About the z axis.
    /// Rotates about the z axis and moves the origin to `origin`.
    static Transform3 turnedAt(const Vec3& origin, double degrees);

    Vec3 map(const Vec3& point) const { return mapDirection(point) + m_origin; }
    Vec3 mapDirection(const Vec3& direction) const
    {
        return m_x * direction.x + m_y * direction.y + m_z * direction.z;
    }
    bool isFinite() const;
    /// The factor by which lengths in the xy plane grow, averaged over all directions.
    double planarScale() const;

    /// The transformation that applies `inner` first and `outer` second.
    friend Transform3 operator*(const Transform3& outer, const Transform3& inner);

private:
    Vec3 m_x{1, 0, 0};
    Vec3 m_y{0, 1, 0};
    Vec3 m_z{0, 0, 1};
    Vec3 m_origin;
};

/// An axis-aligned box in the plane. It is empty until something is added; a single point is not
/// empty.
struct Box
{
    double minX = 1;
    double minY = 0;
    double maxX = -1;
    double maxY = 0;

    bool isEmpty() const { return minX > maxX; }
    double width() const { return maxX - minX; }
    double height() const { return maxY - minY; }
    QPointF center() const { return {(minX + maxX) / 2, (minY + maxY) / 2}; }
    void add(const QPointF& point) { add(Box{point.x(), point.y(), point.x(), point.y()}); }
    void add(const Box& other)
    {
        if (isEmpty()) {
            *this = other;
        } else if (!other.isEmpty()) {
            minX = std::min(minX, other.minX);
            maxX = std::max(maxX, other.maxX);
            minY = std::min(minY, other.minY);
            maxY = std::max(maxY, other.maxY);
        }
    }
    void grow(double by); ///< By the same distance on all sides.
    bool intersects(const Box& other) const
    {
        return minX <= other.maxX && maxX >= other.minX && minY <= other.maxY && maxY >= other.minY;
    }
};

/// The part of a straight line that is left after clipping: its points `from + t * way` for `t`
/// from `low` to `high`.
struct LineRange
{
    double low = 0;
    double high = 1;

    /// Keeps what is inside the box. A single point may be left; returns false when nothing is.
    bool clip(const QPointF& from, const QPointF& way, const Box& box);
};

} // namespace drawing
