#pragma once

#include <QByteArray>

namespace drawing {

/// How a drawing is to be opened, where its file leaves room or is wrong.
struct OpenOptions
{
    /// The code page of its texts, by a name as drawings have it; empty: as the file says.
    QByteArray codePage;
    /// Whether of a file that is cut off what is whole is to be opened; refused otherwise.
    bool wholePart = false;
};

} // namespace drawing
