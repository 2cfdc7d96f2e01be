#pragma once

#include "canvas.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cstdlib>

inline void turnWheel(QWidget& widget, const QPointF& at, int notches)
{
    QWheelEvent event(at, widget.mapToGlobal(at.toPoint()), {}, {0, notches * 120}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void moveMouse(QWidget& widget, const QPointF& to, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A picture of the canvas, taken when painting is complete.
inline QImage pictureOf(Canvas& canvas)
{
    for (;;) {
        QImage picture = canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
        if (canvas.isPainted())
            return picture;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// The share of the pixels in which red, green or blue differs by more than `by`. Small differences
/// are normal because each thread makes its own outlines of texts.
inline double differentPixels(const QImage& a, const QImage& b, int by = 8)
{
    if (a.size() != b.size())
        return 1;
    const auto differs = [by](QRgb x, QRgb y) {
        return std::abs(qRed(x) - qRed(y)) > by || std::abs(qGreen(x) - qGreen(y)) > by ||
               std::abs(qBlue(x) - qBlue(y)) > by;
    };
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += differs(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
    }
    return count / double(a.width() * a.height());
}
