#pragma once

#include "canvasview.h"
#include "linedasher.h"
#include "pointmark.h"
#include "scene.h"

#include <QFont>
#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

#include <atomic>
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
    CanvasView m_view;
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
