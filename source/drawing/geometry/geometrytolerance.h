#pragma once

#include <QStringList>

#include <vector>

namespace drawing {

/// The rows of cells that the text of a TOLERANCE describes. Symbols become characters, and empty
/// rows are left out.
std::vector<QStringList> toleranceCells(const QString& text);

} // namespace drawing
