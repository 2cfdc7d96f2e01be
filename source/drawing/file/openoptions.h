#pragma once

#include <QByteArray>

namespace drawing {

/// Choices for opening a file that is ambiguous or damaged.
struct OpenOptions
{
    /// The code page of the texts, by its name in drawings; empty to use the one that the file
    /// declares.
    QByteArray codePage;
    /// Whether to open the intact part of a truncated file. Otherwise such a file is refused.
    bool wholePart = false;
};

} // namespace drawing
