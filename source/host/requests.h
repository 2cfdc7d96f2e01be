#pragma once

#include "coreservices.h"

namespace host {

/// A command runs while one of these lives.
class VNSI_EXPORT CommandScope
{
public:
    CommandScope();
    ~CommandScope();
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;
};

/// How many interface states are marked as left by requests.
VNSI_EXPORT int markedScraps();

/// The service "Core/RequestSvr".
OdRxObjectPtr makeRequestSvr();

} // namespace host
