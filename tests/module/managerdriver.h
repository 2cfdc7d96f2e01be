#pragma once

#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "trees.h"
#include "useracts.h"

#include <QTableWidget>

/// The record of a layer; `more` contains further members, each after a comma.
QString layer(const QString& name, int status = 1, const QString& more = {});
/// The tree of the layer manager with these records; `more` as in `layer`.
QString layerTree(const QStringList& records, const QString& more = {});

/// The layer manager on the screen, with a recording host and a recording command.
class ManagerDriver
{
public:
    /// `keys` are the members that are recorded with each request.
    ManagerDriver(ModuleFixture& module, const QString& json, RecordingInvoker::Answer answer = {},
        const QStringList& keys = {"marker"});

    QTableWidgetItem* cell(int row, int column) const { return table->item(row, column); }
    QString text(int row, int column) const { return cell(row, column)->text(); }
    vnsi::VnJsonPtr record(int row) const { return root->GetDataJ("LayerList")(row); }
    QString recordText(int row) const { return toText(record(row)); }
    bool isApplyEnabled() const { return button("applyButton")->isEnabled(); }
    QPushButton* button(const char* name) const { return &child<QPushButton>(dialog, name); }
    QString label(const char* name) const;
    QList<int> selectedRows() const;
    /// Whether the cell shows the bitmap "layer_<name>.bmp".
    bool shows(int row, int column, const char* name) const;

    void click(int row, int column) const { clickCell(*table, row, column); }
    void doubleClick(int row, int column) const { clickCell(*table, row, column, true); }
    void select(const QList<int>& rows) const { pickRows(*table, rows, 1); }
    void press(const char* name) const { button(name)->click(); }

    RecordingHost host;
    vnsi::VnJsonPtr root;
    RecordingInvoker::Ptr invoker;
    host::WatchedDialog dialog;
    QTableWidget* table;
};
