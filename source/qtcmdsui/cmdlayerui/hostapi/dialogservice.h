#pragma once

#include "hostextras.h"

namespace vnsi::hostapi {

/// Base of a service that makes dialogs; derived classes override `makeDialog`.
using hostextras::DialogService;

} // namespace vnsi::hostapi
