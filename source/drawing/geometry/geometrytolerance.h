#pragma once

#include <QStringList>

#include <vector>

namespace drawing {

/// The rows of cells that the text of a TOLERANCE stands for, symbols as characters. Rows of
/// nothing are left out.
std::vector<QStringList> toleranceCells(const QString& text);

} // namespace drawing
