#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace drawing {

/// Why something could not be done, worded for the user.
struct Error
{
    QString text;    ///< A Chinese sentence that names the thing and the cause.
    qint64 line = 0; ///< Line of the file where it was found, from 1; 0 when no line is to blame.
    bool cancelled = false; ///< The user stopped the work: nothing to report.
};

template <class T>
using Expected = tl::expected<T, Error>;

} // namespace drawing
