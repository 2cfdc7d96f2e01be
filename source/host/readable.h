#pragma once

#include <QString>

namespace host {

/// Prepares a text for a message: converts line ends to line feeds, allows very long words to
/// break, and leaves out what no window has room for.
QString readable(const QString& text);

} // namespace host
