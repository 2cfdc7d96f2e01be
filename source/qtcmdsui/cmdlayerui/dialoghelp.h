#pragma once

namespace vnsi {

/// Shows the host's help; does nothing when the host offers none.
void vnqtShowHelp();

} // namespace vnsi
