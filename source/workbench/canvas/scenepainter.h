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

/// Draws flattened geometry. It keeps the outlines of texts for the next time.
class ScenePainter
{
public:
    ScenePainter();

    /// Sets the pixels per millimetre of lineweight; 0 draws all lines as thin as possible.
    void setLineweightScale(double pixels) { m_lineweightScale = pixels; }
    /// Draws the part of the scene in `area` of the view: first the fills in their order, then the
    /// lines and texts group by group. `painter` must be clipped to the area. Stops when another
    /// thread sets `isDropped`.
    void paint(QPainter& painter, const ShownScene& scene, const CanvasView& view,
        const QRect& area, const std::atomic<bool>& isDropped);

private:
    struct Outline
    {
        QPainterPath path;
        double width = 0;
    };

    /// How a space is shown.
    struct Space
    {
        PlaneMap map;
        double dashScale = 1; ///< Pixels per unit of linetypes at scale 1.
        double height = 0;    ///< The height in pixels of the view or viewport that shows it.
    };
    /// A surface that hides what was drawn before.
    struct Mask
    {
        quint64 order;
        const drawing::GeometryGroup* group;
        const drawing::Primitive* primitive;
    };
    static constexpr quint64 kLast = std::numeric_limits<quint64>::max();
    bool isInRange(quint64 order) const { return order >= m_from && order < m_to; }

    void paintPaper(const drawing::Sheet& sheet, const PlaneMap& map);
    void paintWindow(const ShownScene::Window& window, const drawing::Sheet& sheet,
        const PlaneMap& map, const QRect& area);
    void paintSpace(const ShownScene& scene, const Space& space, const QRect& area);
    std::vector<Mask> masksOf(const ShownScene& scene) const;
    /// Paints everything between two masks.
    void paintRange(const ShownScene& scene);
    void paintFills(const ShownScene& scene);
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

    // Only used while painting.
    QPainter* m_painter = nullptr;
    PlaneMap m_map;
    quint64 m_from = 0; ///< The range of the drawing order that is being painted.
    quint64 m_to = kLast;
    drawing::Box m_visible;
    std::optional<PointMark> m_mark;
    double m_linetypeScale = 1;                          ///< Pixels per unit of the patterns.
    const drawing::LinetypePattern* m_pattern = nullptr; ///< The pattern of the group's lines.
    LineDasher m_dasher;
    const std::atomic<bool>* m_isDropped = nullptr;
    QVector<QLineF> m_lines;
    QVector<QPointF> m_dots;
    /// For each pixel of the area, the number (from 1) of the group that last drew a dot there.
    std::vector<quint32> m_dotted;
    quint32 m_dotsOfGroup = 0;
    QPointF m_dotsFrom;
    QSize m_dotsSize;
    qreal m_pixelRatio = 1;
    QPolygonF m_part;
};
