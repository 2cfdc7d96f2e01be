#pragma once

#include "hostdialogs.h"

#include <QDialog>
#include <QString>

namespace bench {

/// A visible dialog of the loaded module, made through its service as a host does it.
class ServedDialog
{
public:
    /// `name` is one of the service's dialog names. Without an invoker requests are not answered.
    ServedDialog(const OdString& name, vnsi::VnJsonPtr tree, OdRxObjectPtr invoker = {});
    ServedDialog(const ServedDialog&) = delete;
    ServedDialog& operator=(const ServedDialog&) = delete;

    bool isMade() const { return m_wrapper && m_wrapper.window(); }
    /// Passes the tree again, so that the dialog is filled again.
    void refill() { m_wrapper->setData(m_tree, m_invoker); }
    const vnsi::VnJsonPtr& tree() const { return m_tree; }
    /// Calls a slot without arguments.
    void invoke(const char* slot) const { QMetaObject::invokeMethod(m_wrapper.window(), slot); }

    /// The widget of the dialog with this object name.
    template <class T>
    T* find(const char* objectName) const
    {
        return m_wrapper.window()->findChild<T*>(QLatin1String(objectName));
    }

private:
    vnsi::VnJsonPtr m_tree;
    OdRxObjectPtr m_invoker;
    host::WatchedDialog m_wrapper;
};

} // namespace bench
