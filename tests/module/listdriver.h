#pragma once

#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "trees.h"
#include "useracts.h"

#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

#include <functional>

/// Runs a dialog with a list of layers once, with actions of a user in it.
class ListDriver
{
public:
    using Acts = std::function<void(ListDriver&)>;

    ListDriver(ModuleFixture& module, const QString& name, const QString& json,
        const RecordingInvoker::Answer& answer = {})
        : root(tree(json)),
          dialog(module.createDialog(
              name, root, RecordingInvoker::create(host, {"marker", "LayerList"}, answer))),
          list(&child<QListWidget>(dialog, "layerList"))
    {
    }

    /// Returns the dialog's result. A dialog that the actions leave open is closed by its close
    /// box.
    int run(const Acts& acts)
    {
        ModalDriver user;
        user.then([&](QDialog& window) {
            acts(*this);
            staysOpen = window.isVisible();
            window.close();
        });
        return dialog->doModal();
    }

    QLineEdit& edit() const { return child<QLineEdit>(dialog, "layerNameEdit"); }
    void select(const QList<int>& rows) const { pickRows(*list, rows); }
    void doubleClick(int row) const { clickCell(*list, row, 0, true); }
    void press(const char* button) const { ::press(*dialog.window(), button); }
    vnsi::VnJsonPtr record(int row) const { return root->GetDataJ("LayerList")(row); }
    QString listText() const { return toText(root->GetDataJ("LayerList")); }

    RecordingHost host;
    vnsi::VnJsonPtr root;
    host::WatchedDialog dialog;
    QListWidget* list;
    bool staysOpen = false;
};
