#pragma once

#include "hostdialogs.h"
#include "hoststart.h"
#include "vndialogs.h"

#include <QString>
#include <QWidget>

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

    /// The widget of that object name in a dialog; ends the test program when there is none.
    template <class T>
    static T* child(const host::WatchedDialog& dialog, const char* objectName)
    {
        return child<T>(dialog.window(), objectName);
    }
    template <class T>
    static T* child(const QWidget* parent, const char* objectName)
    {
        T* const found = parent->findChild<T*>(QString::fromUtf8(objectName));
        if (!found)
            failMissing(parent, T::staticMetaObject.className(), objectName);
        return found;
    }

private:
    [[noreturn]] static void failMissing(
        const QWidget* parent, const char* className, const char* objectName);

    host::Host m_host;
};
