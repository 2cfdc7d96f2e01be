#pragma once

#include "file/tagreader.h"

#include <QStringList>

#include <vector>

namespace drawing {

/// How the lines of an MTEXT stand in columns beside each other.
struct TextColumns
{
    int count = 1;
    double width = 0;            ///< Of each.
    double gutter = 0;           ///< Between two.
    double height = 0;           ///< Of each that has none of its own; 0: all are as long.
    std::vector<double> heights; ///< Their own, the first ones.
    bool fromTheRight = false;

    /// Which lines come into which column, by the distance of two lines; the last column takes what
    /// is left.
    std::vector<QStringList> split(const QStringList& lines, double lineDistance) const;
    /// Where a column begins, to the right of where the first one from the left does.
    double leftOf(int column) const;
    double totalWidth() const { return count * width + (count - 1) * gutter; }
};

/// One column where the entity says nothing of others.
TextColumns readTextColumns(TagReader tags);

} // namespace drawing
