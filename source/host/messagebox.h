#pragma once

#include "vnjson.h"

namespace host {

struct Message
{
    OdString caption;
    OdString text;
    vnsi::VnJsonPtr options;
    int style = 0;
    int defaultButton = 1;
    int icon = 0;
};

/// Shows the message and returns the answer of the button pressed; of its cancelling button when it
/// was closed another way.
int showMessageBox(const Message& message);

} // namespace host
