#include "managerdriver.h"

#include <QLabel>
#include <QtTest>

#include <algorithm>

QString layer(const QString& name, int status, const QString& more)
{
    return QStringLiteral(R"({"LayerName":"%1","CurLayer":%2%3})").arg(name).arg(status).arg(more);
}

QString layerTree(const QStringList& records, const QString& more)
{
    return QStringLiteral(R"({"LayerList":[%1]%2})").arg(records.join(','), more);
}

ManagerDriver::ManagerDriver(ModuleFixture& module, const QString& json,
    RecordingInvoker::Answer answer, const QStringList& keys)
    : root(json.isEmpty() ? vnsi::VnJsonPtr() : tree(json)),
      invoker(RecordingInvoker::create(host, keys, std::move(answer))),
      dialog(module.createDialog("Dialog/CmdLayer", root, invoker)),
      table(&child<QTableWidget>(dialog, "layerTable"))
{
    dialog.window()->show();
    if (!QTest::qWaitForWindowActive(dialog.window()))
        QTest::qFail("the window did not come up", __FILE__, __LINE__);
}

QString ManagerDriver::label(const char* name) const
{
    return child<QLabel>(dialog, name).text();
}

QList<int> ManagerDriver::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex& index : table->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool ManagerDriver::shows(int row, int column, const char* name) const
{
    const QSize size(16, 16);
    const QIcon expected(QStringLiteral(":/res/Resources/layer_%1.bmp").arg(name));
    const QImage image = cell(row, column)->icon().pixmap(size).toImage();
    return !image.isNull() && image == expected.pixmap(size).toImage();
}
