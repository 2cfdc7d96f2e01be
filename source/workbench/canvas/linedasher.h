#pragma once

#include "geometry/linetypepattern.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QVector>

#include <vector>

/// Divides lines into the dashes, gaps and dots of their linetypes. All lengths are in pixels, and
/// y grows downwards.
///
/// A run begins and ends with a dash of at least half the length of the pattern's first dash, which
/// is the alignment that this format defines. A run that is too short for one repetition is drawn
/// unbroken, and so is one whose dashes would be too small to see. In closed runs the pattern is
/// stretched until it closes.
class LineDasher
{
public:
    /// A text along a line.
    struct Letters
    {
        QString text;
        QPointF place;
        double angle = 0; ///< In radians.
        double height = 0;
    };

    /// The result. Whoever draws it also clears it.
    QVector<QLineF> lines;
    QVector<QPolygonF> bends; ///< Dashes that go around corners.
    QVector<QPointF> dots;
    std::vector<Letters> letters;

    /// Sets the visible area. Everything outside is left out.
    void setSeen(const QRectF& seen) { m_seen = seen; }
    /// Adds a line with a pattern at `scale` pixels per unit. With `restarts` the pattern restarts
    /// at each vertex.
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

    // State of the current run. Lengths are measured along the run.
    double m_unit = 1;   ///< `m_scale`, adjusted to the run.
    double m_length = 0; ///< The length of the run.
    double m_lead = 0; ///< The length of the dashes at its ends when it differs from the pattern's.
    double m_phase = 0; ///< The position in the pattern at which the run begins.

    // State of the current segment.
    QPointF m_from;
    QPointF m_way; ///< The direction, of length 1.
    double m_start = 0;

    QPolygonF m_piece;
    double m_pieceEnd = 0;
};
