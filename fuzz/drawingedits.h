#pragma once

#include "drawing.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace fuzz {

/// What an edit may have changed, from nothing to things outside of the layer table.
enum class EditReach { Nothing, LayerRecord, Anywhere };

/// Makes one edit, chosen by the bytes, in the open step. A refused edit changes nothing.
EditReach editDrawing(drawing::Drawing& drawing, FuzzedDataProvider& bytes);

} // namespace fuzz
