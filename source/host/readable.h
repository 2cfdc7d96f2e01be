#pragma once

#include <QString>

namespace host {

/// The text as a message can show it: line feeds alone as line ends, endless words allowed to
/// break, and what no window has room for left out.
QString readable(const QString& text);

} // namespace host
