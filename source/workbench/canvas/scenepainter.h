#pragma once

#include "canvasview.h"
#include "geometry/geometry.h"
#include "grouplook.h"
#include "linedasher.h"
#include "pointmark.h"

#include <QFont>
#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

#include <optional>

class QPainter;

/// Draws flattened geometry. Keeps the outlines of texts from one drawing to the next.
class ScenePainter
{
public:
    ScenePainter();

    /// Pixels that a millimetre of lineweight takes; 0 draws all lines as thin as can be.
    void setLineweightScale(double pixels) { m_lineweightScale = pixels; }
    /// Draws the visible groups: fills in their order, then lines, then texts.
    void paint(QPainter& painter, const drawing::Geometry& geometry,
        const std::vector<GroupLook>& looks, const CanvasView& view);

private:
    struct Outline
    {
        QPainterPath path;
        double width = 0;
    };

    void paintFills(const drawing::Geometry& geometry, const std::vector<GroupLook>& looks);
    void paintFill(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void paintLines(const drawing::GeometryGroup& group, const GroupLook& look);
    void paintWide(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void paintPoint(const QPointF& place);
    QPen penOf(const GroupLook& look) const;
    void addLines(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void addPart(const drawing::Primitive& primitive);
    void paintTexts(const drawing::GeometryGroup& group, const QColor& color);
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
    QVector<QLineF> m_lines;
    QVector<QPointF> m_dots;
    QPolygonF m_part;
};
