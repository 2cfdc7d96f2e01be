#include "pointmark.h"

namespace {

enum Mode {
    Dot = 0,
    Nothing = 1,
    Plus = 2,
    Cross = 3,
    Tick = 4,
    FormMask = 7,
    Circle = 32,
    Square = 64
};
constexpr double kUsualShare = 5; ///< In percent of the view's height.

void addLine(QPainterPath& path, const QPointF& from, const QPointF& to)
{
    path.moveTo(from);
    path.lineTo(to);
}

} // namespace

PointMark::PointMark(const drawing::PictureSwitches& switches, double scale, double height)
{
    const double share = switches.pointSize < 0 ? -switches.pointSize : kUsualShare;
    const double size = switches.pointSize > 0 ? switches.pointSize * scale : height * share / 100;
    const int form = switches.pointMode & FormMask;
    isDot = form == Dot;
    reach = size;
    if (form == Plus) {
        addLine(path, {-size, 0}, {size, 0});
        addLine(path, {0, -size}, {0, size});
    } else if (form == Cross) {
        addLine(path, {-size, -size}, {size, size});
        addLine(path, {-size, size}, {size, -size});
    } else if (form == Tick) {
        addLine(path, {0, 0}, {0, -size / 2});
    }
    if (switches.pointMode & Circle)
        path.addEllipse({0, 0}, size / 2, size / 2);
    if (switches.pointMode & Square)
        path.addRect(-size / 2, -size / 2, size, size);
}
