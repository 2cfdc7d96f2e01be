#pragma once

#include "platformextras.h"
#include "vnsidef.h"

#include <QObject>
#include <QString>

#include <memory>

namespace host {

/// The host of a program: while it lives, the host's services are registered and the loaded module
/// is there. Make one, after the application object.
class VNSI_EXPORT Host
{
public:
    Host();
    /// Unloads the module, takes the services back and writes the settings.
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Loads the module library at `path`, unloading one that was loaded before. Returns what went
    /// wrong as a sentence for the user; empty when it is loaded.
    QString loadModule(const QString& path);
    void unloadModule();
    bool isModuleLoaded() const { return !m_module.isNull(); }

private:
    OdRxModulePtr m_module;
    std::unique_ptr<QObject> m_helpKey;
};

} // namespace host
