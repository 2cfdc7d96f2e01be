#pragma once

#include "hostdialogs.h"
#include "hoststart.h"
#include "vndialogs.h"

#include <QString>

/// The host with the module loaded, for the life of a test.
class ModuleFixture
{
public:
    ModuleFixture();

    /// The path of the module's library.
    static QString modulePath();

    /// A dialog of the module, made by its service and given its tree; null for an unknown name.
    host::WatchedDialog createDialog(
        const QString& name, const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker = {});

private:
    host::Host m_host;
};
