#pragma once

#include "coreservices.h"

namespace host {

/// Marks a command as running while this object exists.
class VNSI_EXPORT CommandScope
{
public:
    CommandScope();
    ~CommandScope();
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;
};

/// The number of interface states that are marked as left by requests.
VNSI_EXPORT int markedScraps();

/// Makes the service "Core/RequestSvr".
OdRxObjectPtr makeRequestSvr();

} // namespace host
