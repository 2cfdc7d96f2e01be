#pragma once

#include "canvasview.h"
#include "geometry.h"
#include "grouplook.h"

#include <QFont>
#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

class QPainter;

/// Draws flattened geometry. Keeps the outlines of texts from one drawing to the next.
class ScenePainter
{
public:
    ScenePainter();

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
    void paintLines(const drawing::GeometryGroup& group);
    void addLines(const drawing::GeometryGroup& group, const drawing::Primitive& primitive);
    void addPart();
    void paintTexts(const drawing::GeometryGroup& group, const QColor& color);
    void paintText(const drawing::TextRun& run, bool asBar);
    void flush();
    bool isSeen(const drawing::Box& bounds) const { return bounds.intersects(m_visible); }
    bool isTiny(const drawing::Box& bounds) const;
    const Outline& outlineOf(const QString& text);

    QFont m_font;
    double m_capHeight = 1;
    double m_descent = 0;
    QHash<QString, Outline> m_outlines;

    // What follows is of use only while painting.
    QPainter* m_painter = nullptr;
    CanvasView m_view;
    drawing::Box m_visible;
    QVector<QLineF> m_lines;
    QVector<QPointF> m_dots;
    QPolygonF m_part;
};
