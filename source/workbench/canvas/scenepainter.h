#pragma once

#include "linedasher.h"
#include "planemap.h"
#include "pointmark.h"
#include "scene.h"

#include <QFont>
#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

#include <atomic>
#include <limits>
#include <optional>
#include <vector>

class QPainter;

/// Draws flattened geometry. Keeps the outlines of texts from one drawing to the next.
class ScenePainter
{
public:
    ScenePainter();

    /// Pixels that a millimetre of lineweight takes; 0 draws all lines as thin as can be.
    void setLineweightScale(double pixels) { m_lineweightScale = pixels; }
    /// Draws what of the scene lies in `area` of the view: fills in their order, then lines and
    /// texts of one group after the other. `painter` must be clipped to the area. Gives up when
    /// `isDropped` turns true, which another thread may do.
    void paint(QPainter& painter, const ShownScene& scene, const CanvasView& view,
        const QRect& area, const std::atomic<bool>& isDropped);

private:
    struct Outline
    {
        QPainterPath path;
        double width = 0;
    };

    /// How a space is seen.
    struct Space
    {
        PlaneMap map;
        double dashScale = 1; ///< Pixels a unit of linetypes at scale 1.
        double height = 0;    ///< Of what shows it, in pixels.
    };
    /// A surface that covers what was drawn before.
    struct Mask
    {
        quint64 order;
        const drawing::GeometryGroup* group;
        const drawing::Primitive* primitive;
    };
    /// Places in the order of drawing, over all parts.
    static constexpr quint64 kLast = std::numeric_limits<quint64>::max();
    static quint64 orderOf(std::size_t part, quint32 sequence)
    {
        return quint64(part) << 32 | sequence;
    }
    bool isInRange(std::size_t part, quint32 sequence) const
    {
        const quint64 order = orderOf(part, sequence);
        return order >= m_from && order < m_to;
    }

    void paintPaper(const drawing::Sheet& sheet, const PlaneMap& map);
    void paintWindow(const ShownScene::Window& window, const drawing::Sheet& sheet,
        const PlaneMap& map, const QRect& area);
    void paintSpace(const ShownScene& scene, const Space& space, const QRect& area);
    std::vector<Mask> masksOf(const ShownScene& scene) const;
    /// What lies between two masks.
    void paintRange(const ShownScene& scene);
    void paintFills(const ShownScene& scene, std::size_t part);
    void paintFill(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    using Pieces = ShownScene::Pieces;

    void paintLines(const ShownScene::Group& group, const Pieces& pieces);
    void paintLine(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void beginDots(const QRect& area, qreal pixelRatio);
    void addTiny(const QPointF& at);
    void paintWide(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void paintPoint(const QPointF& place);
    QPen penOf(const GroupLook& look) const;
    void addLines(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void addPart(const drawing::Primitive& primitive);
    void paintTexts(const ShownScene::Group& group, const Pieces& pieces);
    void paintText(const drawing::TextRun& run, bool asBar);
    void paintOutline(const Outline& outline, const QTransform& place);
    void beginTexts(const QColor& color);
    void paintLetters(const QColor& color);
    void flush();
    bool isSeen(const drawing::Box& bounds) const { return bounds.intersects(m_visible); }
    bool isTiny(const drawing::Box& bounds) const;
    const Outline& outlineOf(const QString& text);

    QFont m_font;
    double m_capHeight = 1;
    double m_descent = 0;
    QHash<QString, Outline> m_outlines;
    double m_lineweightScale = 0;

    // What follows is of use only while painting.
    QPainter* m_painter = nullptr;
    PlaneMap m_map;
    quint64 m_from = 0; ///< What of the order of drawing is painted now.
    quint64 m_to = kLast;
    std::size_t m_partNumber = 0;
    drawing::Box m_visible;
    std::optional<PointMark> m_mark;
    double m_linetypeScale = 1;                          ///< Pixels a unit of the patterns.
    const drawing::LinetypePattern* m_pattern = nullptr; ///< Of the group's lines.
    LineDasher m_dasher;
    const std::atomic<bool>* m_isDropped = nullptr;
    QVector<QLineF> m_lines;
    QVector<QPointF> m_dots;
    std::vector<quint32> m_dotted; ///< By pixel of the area: the group last dotted there, from 1.
    quint32 m_dotsOfGroup = 0;
    QPointF m_dotsFrom;
    QSize m_dotsSize;
    qreal m_pixelRatio = 1;
    QPolygonF m_part;
};
