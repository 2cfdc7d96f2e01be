#pragma once

#include "drawingdata.h"

#include <QStringList>

namespace drawing {

/// Gives a new drawing, in which plot styles follow from colours, plot styles with these names,
/// besides those it has already.
void makePlotStyles(DrawingData& data, const QStringList& names);

} // namespace drawing
