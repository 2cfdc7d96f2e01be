#pragma once

#include "canvas.h"

#include <QCoreApplication>
#include <QImage>

#include <cstdlib>

/// What the canvas shows once all of it is painted.
inline QImage pictureOf(Canvas& canvas)
{
    for (;;) {
        const QImage picture = canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
        if (canvas.isPainted())
            return picture;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// The share of the pixels whose red differs by more than `by`. Threads make the outlines of texts
/// for themselves, which come out brighter or darker by a shade.
inline double differentPixels(const QImage& a, const QImage& b, int by = 8)
{
    if (a.size() != b.size())
        return 1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += std::abs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y))) > by ? 1 : 0;
    }
    return count / double(a.width() * a.height());
}
