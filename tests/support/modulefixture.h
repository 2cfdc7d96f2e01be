#pragma once

#include "hostdialogs.h"
#include "hoststart.h"
#include "vndialogs.h"

#include <QString>

/// The host with the loaded module, for the duration of a test.
class ModuleFixture
{
public:
    ModuleFixture();

    /// The path of the module's library.
    static QString modulePath();

    /// Makes a dialog of the module through its service and gives it its tree; null for an unknown
    /// name.
    host::WatchedDialog createDialog(
        const QString& name, const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker = {});

private:
    host::Host m_host;
};
