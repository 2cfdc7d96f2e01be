#pragma once

#include "drawing.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace fuzz {

/// What an edit may have changed besides the records of the layer table.
enum class EditReach { Nothing, LayerRecord, Anywhere };

/// Makes one edit in the open step, chosen by the bytes; a refusal reaches nothing.
EditReach editDrawing(drawing::Drawing& drawing, FuzzedDataProvider& bytes);

} // namespace fuzz
