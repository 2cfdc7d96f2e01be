#pragma once

#include "geometry/linetypepattern.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QVector>

#include <vector>

/// Cuts lines into the dashes, gaps and dots of their linetypes. All lengths are pixels, y grows
/// downwards.
///
/// A run begins and ends with a dash of at least half the first one's length, as the patterns of
/// this format are aligned; one too short for a repeat is drawn whole, and so is one whose dashes
/// nobody could tell apart. Closed runs have the pattern stretched until it closes.
class LineDasher
{
public:
    /// Something written along a line.
    struct Letters
    {
        QString text;
        QPointF place;
        double angle = 0; ///< Radians, to the right of the x axis.
        double height = 0;
    };

    /// What there is to draw; whoever draws it empties it.
    QVector<QLineF> lines;
    QVector<QPolygonF> bends; ///< Dashes around corners.
    QVector<QPointF> dots;
    std::vector<Letters> letters;

    /// What lies outside is left out.
    void setSeen(const QRectF& seen) { m_seen = seen; }
    /// Adds a line as `pattern` cuts it at `scale` pixels a unit. `restarts`: anew at each vertex.
    void dash(const QPolygonF& line, const drawing::LinetypePattern& pattern, double scale,
        bool restarts);

private:
    void dashRun(const QPointF* vertices, int count);
    void fit(double length, bool isClosed);
    void dashSegment(const QPointF& from, const QPointF& to, double start, double length);
    void repeat(double from, double to);
    void take(const drawing::LinetypePattern::Element& element, double at, double from, double to);
    void addPiece(double from, double to);
    void finishPiece();
    QPointF pointAt(double length) const { return m_from + m_way * (length - m_start); }

    QRectF m_seen;
    const drawing::LinetypePattern* m_pattern = nullptr;
    double m_scale = 1;

    // Of the run under way; lengths are along it.
    double m_unit = 1;   ///< `m_scale` as fitted.
    double m_length = 0; ///< Of the run.
    double m_lead = 0;   ///< Of the dashes at its ends, where they are not the pattern's.
    double m_phase = 0;  ///< Where in the pattern the run begins.

    // Of the segment under way.
    QPointF m_from;
    QPointF m_way; ///< Of length 1.
    double m_start = 0;

    QPolygonF m_piece;
    double m_pieceEnd = 0;
};
