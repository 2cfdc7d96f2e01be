#pragma once

#include "otherhost.h"

#include <vector>

/// Everything that this host does to dialogs, a row each.
const std::vector<otherhost::Mischief>& mischiefs();
