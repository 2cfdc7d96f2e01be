#pragma once

#include "hostdialogs.h"

#include <QDialog>
#include <QString>

namespace bench {

/// A dialog of the loaded module, made through its service as the host makes it, and shown.
class ServedDialog
{
public:
    /// `name` is one of the service's dialog names. Without an invoker nothing is answered.
    ServedDialog(const OdString& name, vnsi::VnJsonPtr tree, OdRxObjectPtr invoker = {});
    ServedDialog(const ServedDialog&) = delete;
    ServedDialog& operator=(const ServedDialog&) = delete;

    bool isMade() const { return m_wrapper && m_wrapper.window(); }
    /// Hands the tree over again, which fills the dialog again.
    void refill() { m_wrapper->setData(m_tree, m_invoker); }
    const vnsi::VnJsonPtr& tree() const { return m_tree; }
    /// Calls a slot of the dialog without arguments.
    void invoke(const char* slot) const { QMetaObject::invokeMethod(m_wrapper.window(), slot); }

    /// The dialog's widget of this object name.
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
