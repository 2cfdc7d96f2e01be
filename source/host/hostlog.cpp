#include "hostlog.h"

namespace host {

Q_LOGGING_CATEGORY(hostLog, "vn.host", QtCriticalMsg)

} // namespace host
