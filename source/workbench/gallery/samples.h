#pragma once

namespace drawing {
class Drawing;
}

/// What dialogs have more to show of.
namespace gallerysamples {

/// Puts layer states into the drawing, in a step of their own.
void addStates(drawing::Drawing& drawing);

} // namespace gallerysamples
