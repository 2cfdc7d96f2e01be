#pragma once

#include <QByteArray>

namespace drawing {

/// How a drawing is to be opened, where its file leaves room or is wrong.
struct OpenOptions
{
    /// The code page of its texts, by a name as drawings have it; empty: as the file says.
    QByteArray codePage;
};

} // namespace drawing
