#pragma once

#include "dialogfixture.h"
#include "modaldriver.h"

/// A dialog with a list of layers, which a user works in once.
class ListFixture : public DialogFixture
{
protected:
    void open(const char* name, const QString& json, const RecordingInvoker::Answer& answer = {})
    {
        make(name, json, {"marker", "LayerList"});
        m_invoker->setAnswer(answer);
        m_list = &find<QListWidget>("layerList");
    }

    /// Returns the dialog's result. A dialog that the actions leave open is closed by its close
    /// box.
    int run(const std::function<void()>& acts)
    {
        ModalDriver user;
        user.then([&](QDialog& window) {
            acts();
            m_staysOpen = window.isVisible();
            window.close();
        });
        return m_dialog->doModal();
    }

    QLineEdit& edit() const { return find<QLineEdit>("layerNameEdit"); }
    void select(const QList<int>& rows) const { pickRows(*m_list, rows); }
    void doubleClick(int row) const { clickCell(*m_list, row, 0, true); }
    vnsi::VnJsonPtr record(int row) const { return m_tree->GetDataJ("LayerList")(row); }
    QString listText() const { return toText(m_tree->GetDataJ("LayerList")); }

    QListWidget* m_list = nullptr;
    bool m_staysOpen = false;
};
