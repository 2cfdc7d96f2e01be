#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

namespace host {

/// Makes one of the host's own dialogs available to a service. `T` is a QDialog that reads its
/// input with `readKeys(tree)` and writes its answers with `writeAnswers(tree, isAccepted)`.
template <class T>
class HostModeDialog : public vnsi::VnUiModeDialogBase
{
public:
    static vnsi::VnUiModeDialogBasePtr create(QWidget* parent, const char* objectName)
    {
        auto dialog = OdRxObjectImpl<HostModeDialog<T>>::createObject();
        dialog->m_dialog = new T(parent);
        dialog->m_dialog->setObjectName(QString::fromUtf8(objectName));
        return dialog;
    }

    ~HostModeDialog() override { delete m_dialog.data(); }

    int setData(vnsi::VnJsonPtr data, OdRxObjectPtr) override
    {
        m_data = data ? data : vnsi::ElementValue::createObject(2);
        if (m_dialog)
            m_dialog->readKeys(m_data);
        return m_dialog ? 1 : 0;
    }

    int doModal() override
    {
        if (!m_dialog || !m_data)
            return 0;
        const bool isAccepted = m_dialog->exec() == QDialog::Accepted;
        if (m_dialog)
            m_dialog->writeAnswers(m_data, isAccepted);
        return isAccepted ? kAccepted : kCancelled;
    }

private:
    static constexpr int kAccepted = 1;
    static constexpr int kCancelled = 2;

    vnsi::VnJsonPtr m_data;
    QPointer<T> m_dialog;
};

} // namespace host
