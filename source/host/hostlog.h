#pragma once

#include <QLoggingCategory>

namespace host {

Q_DECLARE_LOGGING_CATEGORY(hostLog)

} // namespace host
