#include "sheet.h"

namespace drawing {

void SheetViewport::zoomAt(const QPointF& place, double factor)
{
    const Vec3 fixed{place.x(), place.y(), 0};
    toSheet = Transform3::translation(fixed) * Transform3::scaling({factor, factor, 1}) *
              Transform3::translation(fixed * -1) * toSheet;
    view.center += (place - center) * ((1 - 1 / factor) / scale);
    view.height /= factor;
    scale *= factor;
}

void SheetViewport::pan(const QPointF& way)
{
    toSheet = Transform3::translation({way.x(), way.y(), 0}) * toSheet;
    view.center -= way / scale;
}

} // namespace drawing
