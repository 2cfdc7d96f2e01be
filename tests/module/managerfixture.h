#pragma once

#include "dialogfixture.h"

#include <algorithm>

/// The record of a layer; `more` contains further members, each after a comma.
inline QString layer(const QString& name, int status = 1, const QString& more = {})
{
    return QStringLiteral(R"({"LayerName":"%1","CurLayer":%2%3})").arg(name).arg(status).arg(more);
}

/// The tree of the layer manager with these records; `more` as in `layer`.
inline QString layerTree(const QStringList& records, const QString& more = {})
{
    return QStringLiteral(R"({"LayerList":[%1]%2})").arg(records.join(','), more);
}

/// The layer manager on the screen.
class ManagerFixture : public DialogFixture
{
protected:
    /// `keys` are the members that are recorded with each request.
    void open(const QString& json, const RecordingInvoker::Answer& answer = {},
        const QStringList& keys = {"marker"})
    {
        DialogFixture::open("Dialog/CmdLayer", json, keys);
        m_invoker->setAnswer(answer);
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.window()));
        m_table = &find<QTableWidget>("layerTable");
    }
    QTableWidgetItem* cell(int row, int column) const { return m_table->item(row, column); }
    QString text(int row, int column) const { return cell(row, column)->text(); }
    vnsi::VnJsonPtr record(int row) const { return m_tree->GetDataJ("LayerList")(row); }
    QString recordText(int row) const { return toText(record(row)); }
    bool isApplyEnabled() const { return isEnabled("applyButton"); }
    QString label(const char* name) const { return find<QLabel>(name).text(); }
    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex& index : m_table->selectionModel()->selectedRows())
            rows.append(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    /// Whether the cell shows the bitmap "layer_<name>.bmp".
    bool shows(int row, int column, const char* name) const
    {
        const QIcon expected(QStringLiteral(":/res/Resources/layer_%1.bmp").arg(name));
        const QImage image = cell(row, column)->icon().pixmap(16, 16).toImage();
        return !image.isNull() && image == expected.pixmap(16, 16).toImage();
    }
    void click(int row, int column) const { clickCell(*m_table, row, column); }
    void doubleClick(int row, int column) const { clickCell(*m_table, row, column, true); }
    void select(const QList<int>& rows) const { pickRows(*m_table, rows, 1); }

    QTableWidget* m_table = nullptr;
};
