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

/// Shows the message and returns the answer of the pressed button. When the box was closed in
/// another way, returns the answer of its cancelling button.
int showMessageBox(const Message& message);

} // namespace host
