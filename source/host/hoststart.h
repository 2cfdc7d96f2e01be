#pragma once

#include "platformextras.h"
#include "vnsidef.h"

#include <QObject>
#include <QString>

#include <memory>

namespace host {

/// The host inside a program. The host's services are registered and the module stays loaded as
/// long as this object exists. Create one object, after the application object.
class VNSI_EXPORT Host
{
public:
    Host();
    /// Unloads the module, removes the services and writes the settings.
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Loads the module library at `path` and unloads an earlier one first. Returns an empty text
    /// on success, otherwise a sentence that tells the user what went wrong.
    QString loadModule(const QString& path);
    void unloadModule();
    bool isModuleLoaded() const { return !m_module.isNull(); }

private:
    OdRxModulePtr m_module;
    std::unique_ptr<QObject> m_helpKey;
    std::unique_ptr<QObject> m_windowPlaces;
};

} // namespace host
