#pragma once

#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "trees.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <functional>

/// A dialog with a list of layers: run once, with the user's acts in it.
class ListDriver
{
public:
    using Acts = std::function<void(ListDriver&)>;

    ListDriver(ModuleFixture& module, const QString& name, const QString& json,
        const RecordingInvoker::Answer& answer = {})
        : root(tree(json)),
          dialog(module.createDialog(
              name, root, RecordingInvoker::create(host, {"marker", "LayerList"}, answer))),
          list(ModuleFixture::child<QListWidget>(dialog, "layerList"))
    {
    }

    /// The result of the dialog; what the acts leave open is closed by its close box.
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

    QStringList texts() const
    {
        QStringList all;
        for (int row = 0; row < list->count(); ++row)
            all.append(list->item(row)->text());
        return all;
    }
    QLineEdit* edit() const { return ModuleFixture::child<QLineEdit>(dialog, "layerNameEdit"); }
    void select(const QList<int>& rows) const
    {
        list->clearSelection();
        for (const int row : rows)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, centre(row));
    }
    void doubleClick(int row) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre(row));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre(row));
    }
    void press(const char* button) const
    {
        QTest::mouseClick(ModuleFixture::child<QPushButton>(dialog, button), Qt::LeftButton);
    }
    QString listText() const { return toText(root->GetDataJ("LayerList")); }

    RecordingHost host;
    vnsi::VnJsonPtr root;
    host::WatchedDialog dialog;
    QListWidget* list;
    bool staysOpen = false;

private:
    QPoint centre(int row) const { return list->visualItemRect(list->item(row)).center(); }
};
