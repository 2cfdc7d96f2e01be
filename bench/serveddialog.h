#pragma once

#include "vndialogs.h"

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

    bool isMade() const { return !m_wrapper.isNull() && m_wrapper->widget(); }
    /// Hands the tree over again, which fills the dialog again.
    void refill() { m_wrapper->setData(m_tree, m_invoker); }
    const vnsi::VnJsonPtr& tree() const { return m_tree; }
    /// Calls a slot of the dialog without arguments.
    void invoke(const char* slot) const { QMetaObject::invokeMethod(m_wrapper->widget(), slot); }

    /// The dialog's widget of this object name.
    template <class T>
    T* find(const char* objectName) const
    {
        return m_wrapper->widget()->findChild<T*>(QLatin1String(objectName));
    }

private:
    vnsi::VnJsonPtr m_tree;
    OdRxObjectPtr m_invoker;
    vnsi::VnUiModeDialogBasePtr m_wrapper;
};

} // namespace bench
