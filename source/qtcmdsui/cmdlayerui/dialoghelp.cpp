#include "dialoghelp.h"

#include "hostapi/hostcalls.h"

namespace vnsi {

void vnqtShowHelp()
{
    hostapi::showHelp();
}

} // namespace vnsi
