#pragma once

#include "command.h"

#include <memory>

/// The layer commands without a dialog. They act on the layers selected in the panel or else on
/// those of the selected entities. A command that needs layers and finds none lets the user pick.
namespace quickcommands {

struct Act;

/// Makes the command of this name, which must be one of the table's.
std::unique_ptr<LayerCommand> make(const char* name);

} // namespace quickcommands
