#pragma once

#include "geometrycurves.h"
#include "geometrytags.h"

#include <array>

namespace drawing {

/// A vertex that separates two parts of a path.
Vec3 pathBreak();

/// A VERTEX of a POLYLINE of any kind.
struct PolylineVertex
{
    Vec3 point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
    qint64 flags = 0;
    /// The corners of a face as vertex numbers from 1; 0 for no corner.
    std::array<qint64, 4> corners{};
};

/// A POLYLINE with its vertices, drawn as lines. It is a flat or spatial polyline, a mesh of rows
/// and columns, or a set of faces over numbered vertices.
class Polyline
{
public:
    /// `head` must outlive this object.
    explicit Polyline(const EntityTags& head);

    void add(const EntityTags& vertex);
    /// Whether its coordinates are those of the plane that its extrusion direction defines.
    bool isPlanar() const;
    /// Whether it runs through its vertices one after the other, in a plane or in space. The other
    /// kinds only have `lines`.
    bool isFlat() const;
    bool isClosed() const;
    bool isContinuous() const; ///< Whether the linetype pattern continues through the vertices.
    /// The vertices; for a curve-fitted polyline those of the curve, not of its frame.
    std::vector<BulgeVertex> vertices() const;
    Path lines() const;

private:
    Path grid() const;
    Path faces() const;

    const EntityTags& m_head;
    qint64 m_flags = 0;
    std::vector<PolylineVertex> m_vertices;
};

/// The edges of the faces of a MESH at its coarsest level.
Path meshEdges(const EntityTags& mesh);

} // namespace drawing
