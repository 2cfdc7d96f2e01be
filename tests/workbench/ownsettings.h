#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

/// Settings of the workbench that only this test reads and writes.
class OwnSettings
{
public:
    OwnSettings()
    {
        QCoreApplication::setOrganizationName("layerbench");
        QCoreApplication::setApplicationName("test");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    }
    static void clear() { QSettings().clear(); }

private:
    QTemporaryDir m_folder;
};
