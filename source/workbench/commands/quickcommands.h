#pragma once

#include "command.h"

#include <memory>

/// The layer commands without a dialog. They act on the layers the panel hands over, else on those
/// of the objects selected; where neither is there and a command needs some, the user picks.
namespace quickcommands {

struct Act;

/// A command of this name; it must be one of the table's.
std::unique_ptr<LayerCommand> make(const char* name);

} // namespace quickcommands
