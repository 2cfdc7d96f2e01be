#pragma once

#include "file/error.h"

#include <QPointF>

namespace drawing {

class DrawingFile;
struct Entity;

/// What a viewport looks at, in units of model space as they are turned in the viewport.
struct ViewportView
{
    QPointF center;
    double height = 0;
};

/// Whether a viewport says of itself what it looks at; old files keep that elsewhere.
bool hasOwnView(const DrawingFile& file, const Entity& viewport);
/// Has the viewport look elsewhere; false, with nothing changed, without a view of its own.
bool writeView(DrawingFile& file, const Entity& viewport, const ViewportView& view);

} // namespace drawing
