#pragma once

namespace vnsi {

/// Shows the host's help; does nothing where the host offers none.
void vnqtShowHelp();

} // namespace vnsi
