#pragma once

#include "file/tagreader.h"
#include "geometryhatch.h"

namespace drawing {

/// Reads a HATCH from its tags, which must be passed in their order. It does not trust the counts
/// in the file: a part ends where the next one begins.
class HatchReader
{
public:
    void take(const Tag& tag);
    /// Call this once after the last tag.
    void finish();

    bool isSolid() const { return m_solid; }
    const std::vector<Path>& loops() const { return m_loops; }
    const std::vector<PatternLine>& pattern() const { return m_pattern; }

private:
    enum class Part { Head, PolylineLoop, EdgeLoop, Pattern, Tail };
    enum class EdgeKind { None, Line, Arc, Ellipse, Spline };
    struct Edge
    {
        EdgeKind kind = EdgeKind::None;
        Path points;  ///< From the codes 10 and 20.
        Path seconds; ///< From the codes 11 and 21.
        double size = 0;
        double start = 0;
        double end = 0;
        bool forward = true;
        Spline spline;
    };

    void takeHead(const Tag& tag);
    void takePolyline(const Tag& tag);
    void takeEdge(const Tag& tag);
    void takeSpline(const Tag& tag);
    void takePattern(const Tag& tag);
    void finishEdge();
    void joinLoop(Path path);
    void finishLoop();

    Part m_part = Part::Head;
    bool m_solid = false;
    std::vector<BulgeVertex> m_vertices;
    Edge m_edge;
    Path m_loop;
    int m_loopEdges = 0;
    std::vector<Path> m_loops;
    std::vector<PatternLine> m_pattern;
};

} // namespace drawing
