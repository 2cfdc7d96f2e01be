#pragma once

#include "geometrycurves.h"
#include "geometrytags.h"

#include <array>

namespace drawing {

/// A vertex that divides the parts of a path.
Vec3 pathBreak();

/// A VERTEX of a POLYLINE, whatever the polyline's kind makes of it.
struct PolylineVertex
{
    Vec3 point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
    qint64 flags = 0;
    std::array<qint64, 4> corners{}; ///< Of a face: numbers of vertices from 1, 0 = no corner.
};

/// A POLYLINE with its vertices as lines: a flat or spatial one, a mesh of rows and columns, or
/// faces over numbered vertices.
class Polyline
{
public:
    /// `head` must outlive this.
    explicit Polyline(const EntityTags& head);

    void add(const EntityTags& vertex);
    /// Its coordinates are those of the plane its extrusion stands for.
    bool isPlanar() const;
    /// Runs through its vertices, in a plane or not; the others have `lines` alone.
    bool isFlat() const;
    bool isClosed() const;
    bool isContinuous() const; ///< Its linetype is, at the vertices.
    /// Of a curve-fitted polyline the curve, not its frame.
    std::vector<BulgeVertex> vertices() const;
    Path lines() const;

private:
    Path grid() const;
    Path faces() const;

    const EntityTags& m_head;
    qint64 m_flags = 0;
    std::vector<PolylineVertex> m_vertices;
};

/// The edges of a MESH's faces at its coarsest level.
Path meshEdges(const EntityTags& mesh);

} // namespace drawing
