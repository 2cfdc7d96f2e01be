#include "canvaspick.h"

#include "entityset.h"
#include "geometry/geometrytext.h"
#include "planemap.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

using drawing::Box;
using drawing::GeometryGroup;
using drawing::Primitive;
using drawing::TextRun;

namespace {

double distance(const QPointF& at, const QPointF& from, const QPointF& to)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    const double part =
        square > 0 ? std::clamp(QPointF::dotProduct(at - from, along) / square, 0.0, 1.0) : 0;
    const QPointF gap = at - (from + along * part);
    return std::hypot(gap.x(), gap.y());
}

/// Calls `visit(from, to)` for each line of a primitive until it returns true. A single vertex
/// counts as a line to itself. The parts of a fill are closed.
template <class Visit>
bool anyLine(const GeometryGroup& group, const Primitive& primitive, Visit visit)
{
    const QPointF* const begin = group.vertices.data() + primitive.first;
    const QPointF* const end = begin + primitive.count;
    const bool isClosed = primitive.shape == Primitive::Shape::Fill;
    const auto isBreak = [](const QPointF& vertex) { return std::isnan(vertex.x()); };
    for (const QPointF* part = begin; part < end;) {
        const QPointF* const next = std::find_if(part, end, isBreak);
        if (next - part == 1 && visit(*part, *part))
            return true;
        for (const QPointF* vertex = part; vertex + 1 < next; ++vertex) {
            if (visit(vertex[0], vertex[1]))
                return true;
        }
        if (isClosed && next - part > 2 && visit(next[-1], *part))
            return true;
        part = next + 1;
    }
    return false;
}

/// Whether a fill covers a point, by the even-odd rule.
bool isFilledAt(const GeometryGroup& group, const Primitive& primitive, const QPointF& at)
{
    bool inside = false;
    anyLine(group, primitive, [&](const QPointF& from, const QPointF& to) {
        const bool crosses = (from.y() > at.y()) != (to.y() > at.y());
        if (crosses &&
            at.x() < (to.x() - from.x()) * (at.y() - from.y()) / (to.y() - from.y()) + from.x())
            inside = !inside;
        return false;
    });
    return inside;
}

/// Whether a line crosses the box: clipping it at the box's sides leaves something.
bool reachesInto(const Box& box, const QPointF& from, const QPointF& to)
{
    return drawing::LineRange().clip(from, to - from, box);
}

bool isInside(const Box& inner, const Box& box)
{
    return inner.minX >= box.minX && inner.maxX <= box.maxX && inner.minY >= box.minY &&
           inner.maxY <= box.maxY;
}

bool reachesInto(const Box& box, const GeometryGroup& group, const Primitive& primitive)
{
    if (isInside(primitive.bounds, box))
        return true;
    const auto reaches = [&box](const QPointF& from, const QPointF& to) {
        return reachesInto(box, from, to);
    };
    return anyLine(group, primitive, reaches) ||
           (primitive.shape == Primitive::Shape::Fill &&
               isFilledAt(group, primitive, {box.minX, box.minY}));
}

bool reachesInto(const Box& box, const QPolygonF& outline)
{
    for (int i = 0; i + 1 < outline.size(); ++i) {
        if (reachesInto(box, outline[i], outline[i + 1]))
            return true;
    }
    return outline.containsPoint({box.minX, box.minY}, Qt::OddEvenFill);
}

Box boundsOf(const QPolygonF& outline)
{
    Box box;
    for (const QPointF& corner : outline)
        box.add(corner);
    return box;
}

Box around(const QPointF& at, double reach)
{
    return {at.x() - reach, at.y() - reach, at.x() + reach, at.y() + reach};
}

} // namespace

QPolygonF textOutline(const TextRun& run)
{
    // In the order of TextRun::Vertical.
    constexpr double kBottoms[] = {0, 0, -0.5, -1};
    const double width = run.fitWidth > 0 ? run.fitWidth : drawing::textWidth(run.text);
    const QPointF along = run.right * width;
    const QPointF corner = run.origin - along * (static_cast<double>(run.horizontal) / 2) +
                           run.up * kBottoms[static_cast<int>(run.vertical)];
    return QPolygonF({corner, corner + along, corner + along + run.up, corner + run.up, corner});
}

/// The best hit so far. Lines are preferred to surfaces, then nearer ones, then later ones.
struct CanvasPick::Hit
{
    int entity = -1;
    bool onLine = false;
    double distance = 0;
    quint64 order = 0;

    void offer(const Hit& other)
    {
        const auto rank = [](const Hit& hit) {
            return std::make_tuple(hit.entity >= 0, hit.onLine, -hit.distance, hit.order);
        };
        if (rank(*this) <= rank(other))
            *this = other;
    }
};

int CanvasPick::nearest(const QPointF& at, double reach) const
{
    constexpr quint64 kOverFills = std::numeric_limits<quint64>::max();
    const Box near = around(at, reach);
    Hit best;
    const auto tryPrimitive = [&](const ShownScene::Group& group, const Primitive& primitive) {
        double least = reach;
        bool onLine = false;
        anyLine(group.geometry, primitive, [&](const QPointF& from, const QPointF& to) {
            const double gap = distance(at, from, to);
            onLine = onLine || gap <= reach;
            least = std::min(least, gap);
            return false;
        });
        const bool isFill = primitive.shape == Primitive::Shape::Fill;
        if (onLine && !isFill)
            best.offer({primitive.entity, true, least, primitive.order});
        else if (isFill && (onLine || isFilledAt(group.geometry, primitive, at)))
            best.offer({primitive.entity, false, 0, primitive.order});
    };
    m_scene.forEachNear(near, tryPrimitive, [&](const ShownScene::Group&, const TextRun& run) {
        if (reachesInto(near, textOutline(run)))
            best.offer({run.entity, false, 0, kOverFills});
    });
    return best.entity;
}

std::vector<int> CanvasPick::within(const Box& box, Mode mode) const
{
    EntitySet found;
    const auto counts = [&](const GeometryGroup& group, const Primitive& primitive) {
        return mode == Mode::Inside ? isInside(primitive.bounds, box)
                                    : reachesInto(box, group, primitive);
    };
    const auto textCounts = [&](const TextRun& run) {
        const QPolygonF outline = textOutline(run);
        return mode == Mode::Inside ? isInside(boundsOf(outline), box) : reachesInto(box, outline);
    };
    m_scene.forEachNear(
        box,
        [&](const ShownScene::Group& group, const Primitive& primitive) {
            if (counts(group.geometry, primitive))
                found.insert(primitive.entity);
        },
        [&](const ShownScene::Group&, const TextRun& run) {
            if (textCounts(run))
                found.insert(run.entity);
        });
    if (mode == Mode::Crossing)
        return found.entities();
    EntitySet out; // Entities that also show something outside of the box.
    m_scene.forEachGroup([&](const ShownScene::Group& group) {
        for (const Primitive& primitive : group.geometry.primitives) {
            if (found.contains(primitive.entity) && !isInside(primitive.bounds, box))
                out.insert(primitive.entity);
        }
        for (const TextRun& run : group.geometry.texts) {
            if (found.contains(run.entity) && !textCounts(run))
                out.insert(run.entity);
        }
    });
    std::vector<int> whole = found.entities();
    whole.erase(std::remove_if(whole.begin(), whole.end(),
                    [&out](int entity) { return out.contains(entity); }),
        whole.end());
    return whole;
}

std::vector<int> CanvasPick::shown(const std::vector<int>& entities) const
{
    EntitySet found;
    const auto note = [&found](const ShownScene::Group&, const auto& piece) {
        found.insert(piece.entity);
    };
    m_scene.forEachPieceOf(entities, note);
    for (const ShownScene::Window& window : m_scene.windows())
        window.scene->forEachPieceOf(entities, note);
    return found.entities();
}

void CanvasPick::addThrough(
    const ShownScene::Window& window, const std::vector<int>& entities, Box& box) const
{
    const Box inside = CanvasPick(*window.scene).bounds(entities);
    const Box cut = boundsOf(window.viewport);
    if (inside.isEmpty())
        return;
    Box seen;
    for (const double x : {inside.minX, inside.maxX}) {
        for (const double y : {inside.minY, inside.maxY}) {
            const drawing::Vec3 corner = window.viewport.toSheet.map({x, y, 0});
            seen.add(QPointF(std::clamp(corner.x, cut.minX, cut.maxX),
                std::clamp(corner.y, cut.minY, cut.maxY)));
        }
    }
    box.add(seen);
}

drawing::Box CanvasPick::bounds(const std::vector<int>& entities) const
{
    drawing::Box box;
    m_scene.forEachPieceOf(
        entities, [&box](const ShownScene::Group&, const auto& piece) { box.add(piece.bounds); });
    for (const ShownScene::Window& window : m_scene.windows())
        addThrough(window, entities, box);
    return box;
}
