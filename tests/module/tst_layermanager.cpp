#include "hostextras.h"
#include "managerdriver.h"
#include "rows.h"
#include "useracts.h"
#include "valuetree.h"

#include <QButtonGroup>
#include <QDialog>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace vnsi;

namespace {

const char kNotCurrent[] =
    "message|无法将选定图层置为当前图层。\n\n无法将下列图层置为当前图层:\n    依赖外部参照的图层\n"
    "    已冻结的图层\n    已删除的图层\n|图层 - 无法置为当前|64";
const char kCurrentOff[] =
    "message|当前图层将被关闭。\n是否要使当前图层保持打开状态?\n|Quenlith|68";
const char kCurrentOffTask[] =
    "task|图层 - 关闭当前图层|当前图层将被关闭。希望执行什么操作？|101=关闭当前图层;"
    "102=使当前图层保持打开状态";
const char kSave[] = "message|是否保存对图层设置的修改？|提示|4";

QString refusal(int refused, int selected)
{
    return QStringLiteral("message|有 %1 个选定图层无法删除（共 %2 个选定图层)\r\n "
                          "无法删除以下图层：\r\n    ·图层0和图层Defpoints\r\n    ·当前图层\r\n"
                          "    依赖外部参照的图层\r\n    ·包含对象的图层\r\n |提示|80")
        .arg(refused)
        .arg(selected);
}

QString request(int code)
{
    return QStringLiteral(R"(request|%1|0|{"marker":%1})").arg(code);
}

/// Answers the request for a new layer.
void addLayer(const VnJsonPtr& root)
{
    hostextras::append(root->GetDataJ("LayerList"), tree(layer("图层1", 1, R"(,"Selected":true)")));
}

/// Sends a key with the text that an item view would search for.
void typeKey(QWidget* widget, Qt::Key key, const QString& text)
{
    QTest::sendKeyEvent(QTest::Click, widget, key, text, Qt::NoModifier);
}

} // namespace

class TestLayerManager : public QObject
{
    Q_OBJECT

private slots:
    void tabLeavesTable()
    {
        const ManagerDriver manager(m_module, layerTree({layer("0", 0)}));
        QTest::keyClick(manager.table, Qt::Key_Tab);
        QVERIFY(manager.button("okButton")->hasFocus());
    }

    void deletesSelected_data()
    {
        // The names of the selected records and further members of theirs.
        const Rows<QStringList, QStringList, int> row("more", "after", "refused");
        const QString marked = R"({"CurLayer":2,"LayerName":"%1","Modified":1,"Selected":true})";
        const QString kept = R"({"CurLayer":1,"LayerName":"%1","Selected":true})";
        row("empty layer", {"A|"}, {marked.arg("A")}, 0);
        row("0, Defpoints and an empty one", {"0|", "dEFPOINTS|", "A|"},
            {kept.arg("0"), kept.arg("dEFPOINTS"), marked.arg("A")}, 2);
        row("used", {R"(A|,"Used":true)", "B|"},
            {R"({"CurLayer":1,"LayerName":"A","Selected":true,"Used":true})", marked.arg("B")}, 1);
        row("of a reference", {R"(x$A|,"bDepend":true)"},
            {R"({"CurLayer":1,"LayerName":"x$A","Selected":true,"bDepend":true})"}, 1);
        row("looks like 0", {"00|"}, {marked.arg("00")}, 0);
        row("deleted before, without a mark", {R"(A|,"CurLayer":2)"}, {kept.arg("A")}, 0);
        row("deleted before", {R"(A|,"CurLayer":2,"Modified":1)"},
            {R"({"CurLayer":1,"LayerName":"A","Modified":1,"Selected":true})"}, 0);
    }

    void deletesSelected()
    {
        QFETCH(QStringList, more);
        QFETCH(QStringList, after);
        QFETCH(int, refused);
        QStringList records{layer("Current", 0)};
        QList<int> rows;
        for (const QString& record : more) {
            rows.append(records.size());
            records.append(layer(record.section('|', 0, 0)));
        }
        ManagerDriver manager(m_module, layerTree(records));
        for (int i = 0; i < more.size(); ++i)
            merge(manager.record(i + 1), '{' + more[i].section('|', 1).mid(1) + '}');
        manager.select(rows);
        manager.press("deleteLayerButton");

        QStringList log;
        if (refused)
            log.append(refusal(refused, more.size()));
        QCOMPARE(manager.host.log(), log << request(1));
        for (int i = 0; i < after.size(); ++i) {
            QCOMPARE(manager.recordText(i + 1), after[i]);
            QVERIFY(manager.shows(i + 1, 0,
                manager.record(i + 1)->GetDataI("CurLayer") == 2 ? "deleted" : "nocurrent"));
        }
        QVERIFY(manager.isApplyEnabled());
        QCOMPARE(manager.selectedRows(), rows);
    }

    void deletesByKey()
    {
        for (const char* focused : {"layerTable", "okButton"}) {
            ManagerDriver manager(m_module, layerTree({layer("0", 0), layer("A")}));
            manager.select({0, 1});
            auto& widget = child<QWidget>(manager.dialog, focused);
            widget.setFocus();
            typeKey(&widget, Qt::Key_Delete, "\x7f");
            QCOMPARE(manager.host.log(), (QStringList{refusal(1, 2), request(1)}));
            QVERIFY(manager.shows(1, 0, "deleted"));
            QCOMPARE(manager.table->currentRow(), 1); // The keyboard continues from this row.
        }
    }

    void deletesNothingUnselected()
    {
        ManagerDriver manager(m_module, layerTree({layer("0", 0), layer("A")}), {}, {});
        manager.press("deleteLayerButton");
        QVERIFY(manager.host.log().isEmpty());
        QVERIFY(!manager.isApplyEnabled());
        QCOMPARE(manager.root->GetDataI("SelectCount", -1), 0);
        QVERIFY(!host::hasKey(manager.root, "LastIndex"));
        QVERIFY(!host::hasKey(manager.root, "ColumnWidthList"));
    }

    void addsLayer()
    {
        ManagerDriver manager(m_module,
            layerTree({layer("0", 0), layer("A"), layer("B", 1, R"(,"Selected":true)")}), addLayer);
        manager.table->setColumnWidth(1, 222);
        manager.select({1});
        manager.press("newLayerButton");
        QCOMPARE(manager.host.log(), QStringList{request(0)});
        QCOMPARE(manager.table->rowCount(), 4);
        QCOMPARE(manager.label("layerCountLabel"), "全部：共4个图层");
        QCOMPARE(manager.selectedRows(), (QList<int>{1, 3}));
        QVERIFY(!manager.record(2)->GetDataB("Selected", true));
        QCOMPARE(
            manager.root->GetDataJ("ColumnWidthList").ArrayCount(), manager.table->columnCount());
        QCOMPARE(manager.table->columnWidth(1), 222);
        QVERIFY(manager.isApplyEnabled());
        manager.press("newLayerButton"); // The widths are replaced, not appended.
        QCOMPARE(
            manager.root->GetDataJ("ColumnWidthList").ArrayCount(), manager.table->columnCount());
    }

    void tellsOnlyDrawnWidths()
    {
        ManagerDriver manager(m_module, layerTree({layer("0", 0)}));
        manager.table->setColumnWidth(1, 222);
        manager.press("applyButton");
        QVERIFY(!host::hasKey(manager.root, "ColumnWidthList"));
        drawColumn(*manager.table, 1, 180);
        const VnJsonPtr widths = manager.root->GetDataJ("ColumnWidthList");
        QCOMPARE(widths.ArrayCount(), manager.table->columnCount());
        QCOMPARE(hostextras::intOf(widths(1), 0), 180);
    }

    void showsWholeLastRow()
    {
        QStringList records{layer("0", 0)};
        for (int i = 0; i < 60; ++i)
            records.append(layer(QString::number(i)));
        ManagerDriver manager(m_module, layerTree(records), addLayer);
        manager.table->setColumnWidth(12, 4000);
        manager.press("newLayerButton");
        const QRect last = manager.table->visualItemRect(manager.cell(61, 1));
        QVERIFY(manager.table->horizontalScrollBar()->isVisible());
        QVERIFY(last.bottom() <= manager.table->viewport()->rect().bottom());
    }

    void writesSelectionByRanges()
    {
        ManagerDriver manager(m_module,
            layerTree({layer("0", 0), layer("A"), layer("B"), layer("C"), layer("D")}), {},
            {"SelectCount", "LastIndex", "LastSelectedIndex"});
        manager.select({3, 4, 1}); // The last selected range ends at row 1.
        manager.press("newLayerButton");
        QCOMPARE(manager.host.log(), QStringList{R"(request|0|0|{"LastIndex":4,)"
                                                 R"("LastSelectedIndex":1,"SelectCount":3})"});
    }

    void setsCurrentByButton_data()
    {
        // The answer is 0 when nothing is asked.
        const Rows<QString, int, QString, bool, bool> row(
            "more", "answer", "asked", "isCurrent", "isOff");
        row("plain", "{}", 0, "", true, false);
        row("frozen", R"({"Frozen":true,"Off":true})", 0, kNotCurrent, false, true);
        row("deleted", R"({"CurLayer":2})", 0, kNotCurrent, false, false);
        row("of a reference", R"({"bDepend":true})", 0, kNotCurrent, false, false);
        row("off, turned on", R"({"Off":true})", 6, kCurrentOff, true, false);
        row("off, left off", R"({"Off":true})", 7, kCurrentOff, true, true);
    }

    void setsCurrentByButton()
    {
        QFETCH(QString, more);
        QFETCH(int, answer);
        QFETCH(QString, asked);
        QFETCH(bool, isCurrent);
        ManagerDriver manager(m_module, layerTree({layer("Old", 0), layer("New")}));
        merge(manager.record(1), more);
        if (answer)
            manager.host.answer(answer);
        manager.select({1});
        manager.press("setCurrentButton");
        QCOMPARE(manager.host.log().join('#'), asked);
        QCOMPARE(manager.label("currentLayerLabel"),
            QString(isCurrent ? "当前图层：New" : "当前图层：Old"));
        QTEST(manager.record(1)->GetDataB("Off"), "isOff");
        QCOMPARE(manager.record(0)->GetDataI("CurLayer"), isCurrent ? 1 : 0);
        QCOMPARE(manager.record(0)->GetDataB("Modified"), isCurrent);
        QCOMPARE(manager.record(1)->GetDataB("Modified"), isCurrent);
        QVERIFY(manager.shows(0, 0, isCurrent ? "nocurrent" : "current"));
        QVERIFY(manager.isApplyEnabled());
        QCOMPARE(
            manager.root->GetDataJ("ColumnWidthList").ArrayCount(), manager.table->columnCount());
        if (isCurrent) { // The restrictions of the current layer move with it.
            manager.click(1, 3);
            QVERIFY(!manager.record(1)->GetDataB("Frozen"));
        }
    }

    void setsNothingCurrentUnlessOneIsSelected_data()
    {
        const Rows<QList<int>, bool> row("rows", "enables");
        row("none", {}, false);
        row("two", {1, 2}, false);
        row("the current one", {0}, true);
    }

    void setsNothingCurrentUnlessOneIsSelected()
    {
        QFETCH(QList<int>, rows);
        ManagerDriver manager(m_module, layerTree({layer("A", 0), layer("B"), layer("C")}));
        manager.select(rows);
        manager.press("setCurrentButton");
        QVERIFY(manager.host.log().isEmpty());
        QCOMPARE(manager.label("currentLayerLabel"), "当前图层：A");
        QVERIFY(!manager.record(0)->GetDataB("Modified"));
        QTEST(manager.isApplyEnabled(), "enables");
    }

    void setsCurrentByDoubleClick_data()
    {
        const Rows<int, QString, int, QString, bool, bool> row(
            "row", "more", "answer", "asked", "changes", "isOff");
        row("plain", 2, "{}", 0, "", true, false);
        row("current already", 0, "{}", 0, "", false, false);
        row("frozen", 2, R"({"Frozen":true})", 0, kNotCurrent, false, false);
        row("off, kept on", 2, R"({"Off":true})", 102, kCurrentOffTask, true, false);
        row("off, turned off", 2, R"({"Off":true})", 101, kCurrentOffTask, true, true);
        row("off, task dialog closed", 2, R"({"Off":true})", 2, kCurrentOffTask, true, true);
    }

    void setsCurrentByDoubleClick()
    {
        QFETCH(int, row);
        QFETCH(QString, more);
        QFETCH(int, answer);
        QFETCH(QString, asked);
        QFETCH(bool, changes);
        ManagerDriver manager(
            m_module, layerTree({layer("A", 0), layer("B", 1, R"(,"Selected":true)"), layer("C")}));
        merge(manager.record(row), more);
        if (answer)
            manager.host.answer(answer);
        manager.doubleClick(row, 0);
        QCOMPARE(manager.host.log().join('#'), asked);
        QCOMPARE(manager.record(0)->GetDataI("CurLayer"), changes ? 1 : 0);
        QCOMPARE(manager.record(1)->GetDataB("Selected"), !changes);
        QCOMPARE(host::hasKey(manager.root, "ColumnWidthList"), changes);
        QCOMPARE(manager.isApplyEnabled(), changes);
        QTEST(manager.record(row)->GetDataB("Off"), "isOff");
        if (changes)
            QCOMPARE(manager.selectedRows(), QList<int>{row});
    }

    void renames_data()
    {
        // The message of the refusal; empty for none.
        const Rows<QString, QString, QString> row("typed", "stored", "refused");
        const QString length = "message|名称 的长度必须至少为一个字符|图层 - 文字长度|64";
        const QString tooLong =
            "message|图层名无效。\n\n所允许的最大长度为 255 个字符\n|图层 - 文字长度|64";
        const QString forbidden = "message|图层名中包含无效的字符。\n\n图层名称中不得含有以下字符："
                                  "\n\\<>/\":;?*|,=`|Quenlith|64";
        const QString notUnique = "message|图层名无效。\n\n图层名必须唯一\n|Quenlith|64";
        row("plain", "墙 1", "墙 1", "");
        row("blanks around", " \t墙\n ", "墙", "");
        row("other case of itself", "a", "a", "");
        row("empty", "", "A", length);
        row("only blanks", "  ", "A", length);
        row("255 characters", QString(255, L'墙'), QString(255, L'墙'), "");
        row("255 and blanks", QString(255, 'x') + "  ", QString(255, 'x'), "");
        row("255 beyond sixteen bits", QString("\U0002070E").repeated(255),
            QString("\U0002070E").repeated(255), "");
        row("256 characters", QString(256, 'x'), "A", tooLong);
        row("256, one forbidden", QString(255, 'x') + "<", "A", tooLong);
        for (const QChar c : QStringLiteral("\\<>/\":;?*|,=`"))
            row(qPrintable("forbidden " + QString(c)), QString("x") + c, "A", forbidden);
        row("control character", "x\x01y", "A", forbidden);
        row("allowed signs", "x$-_'.%[]", "x$-_'.%[]", "");
        row("taken in other case", "LAYER1", "A", notUnique);
        row("taken, with blanks", " Étage ", "A", notUnique);
    }

    void renames()
    {
        QFETCH(QString, typed);
        QFETCH(QString, refused);
        ManagerDriver manager(
            m_module, layerTree({layer("0", 0), layer("A"), layer("layer1"), layer("étage")}));
        manager.host.answer([&](const VnJsonPtr& question) {
            merge(question, QJsonObject{{"Success", true}, {"NewName", typed}});
            return 1;
        });
        manager.doubleClick(1, 1);
        QStringList log{R"(dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|{"DefaultName":"A"})"};
        if (!refused.isEmpty())
            log.append(refused);
        QCOMPARE(manager.host.log(), log);
        QTEST(manager.text(1, 1), "stored");
        QTEST(toJsonObject(manager.record(1))["LayerName"].toString(), "stored");
        QCOMPARE(manager.cell(1, 1)->textAlignment(), 129);
        QVERIFY(!(manager.cell(1, 1)->flags() & Qt::ItemIsEditable));
        QVERIFY(manager.record(1)->GetDataB("Modified")); // Whether the name was refused or not.
        QVERIFY(manager.isApplyEnabled());
        QVERIFY(!manager.table->signalsBlocked());
    }

    void renamesOnlyLayerToAnything()
    {
        ManagerDriver manager(m_module, layerTree({layer("A", 0)}));
        manager.host.answer(1, R"({"Success":true,"NewName":" <> "})");
        manager.doubleClick(0, 1);
        QCOMPARE(manager.text(0, 1), " <> ");
    }

    void refusesToRename_data()
    {
        const Rows<QString, bool> row("record", "refused");
        row("0", layer("0"), true);
        row("of a reference", layer("x|A", 1, R"(,"bDepend":true)"), true);
        row("looks like 0", layer("0 "), false);
        row("Defpoints", layer("Defpoints"), false);
    }

    void refusesToRename()
    {
        QFETCH(QString, record);
        QFETCH(bool, refused);
        ManagerDriver manager(m_module, layerTree({layer("C", 0), record}));
        manager.host.setLogsTrees(false);
        if (!refused)
            manager.host.answer(2, R"({"Success":false,"NewName":"no"})");
        manager.doubleClick(1, 1);
        QCOMPARE(manager.host.log().join('#'),
            QString(refused ? "message|不能重命名选定图层。\n\n不能重命名下列图层:\n    图层 0\n"
                              "    依赖外部参照的图层\n|Quenlith|64"
                            : "dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|"));
        QCOMPARE(toJsonObject(manager.record(1)), toJsonObject(tree(record)));
        QCOMPARE(manager.isApplyEnabled(), !refused);
    }

    void describes()
    {
        ManagerDriver manager(
            m_module, layerTree({layer("0", 0, R"(,"Description":"旧","bDepend":true)")}));
        manager.host.answer(1, R"({"Success":true,"NewName":" <新> "})");
        manager.doubleClick(0, 12);
        QCOMPARE(manager.host.log(), QStringList{"dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|"
                                                 R"({"DefaultName":"旧","Tip":"说明:"})"});
        QCOMPARE(manager.text(0, 12), " <新> ");
        QCOMPARE(manager.cell(0, 12)->textAlignment(), 129);
        QVERIFY(manager.record(0)->GetDataB("Modified"));
    }

    void closes_data()
    {
        // An empty button name stands for the Esc key.
        const Rows<QByteArray, QString, int, QString, int> row(
            "button", "modified", "answer", "log", "code");
        const QString apply = request(4);
        row("OK, nothing modified", "okButton", "{}", 0, apply, 1);
        row("OK, modified", "okButton", R"({"Modified":true})", 0, apply, 1);
        row("Cancel, nothing modified", "cancelButton", R"({"Modified":false})", 0, "", 0);
        row("Cancel, mark of another type", "cancelButton", R"({"Modified":"x"})", 0, "", 0);
        row("Cancel, saved", "cancelButton", R"({"Modified":true})", 6, kSave + ("#" + apply), 0);
        row("Cancel, mark as a number", "cancelButton", R"({"Modified":1})", 7, kSave, 0);
        row("Cancel, not saved", "cancelButton", R"({"Modified":true})", 7, kSave, 0);
        row("Esc", "", R"({"Modified":true})", 0, "", 0);
    }

    void closes()
    {
        QFETCH(QByteArray, button);
        QFETCH(QString, modified);
        QFETCH(int, answer);
        ManagerDriver manager(m_module, layerTree({layer("A", 0), layer("B")}));
        merge(manager.record(1), modified);
        if (answer)
            manager.host.answer(answer);
        QSignalSpy finished(qobject_cast<QDialog*>(manager.dialog.window()), &QDialog::finished);
        if (button.isEmpty())
            typeKey(manager.table, Qt::Key_Escape, "\x1b");
        else
            manager.press(button.constData());
        QCOMPARE(finished.size(), 1);
        QTEST(finished[0][0].toInt(), "code");
        QTEST(manager.host.log().join('#'), "log");
        QVERIFY(!host::hasKey(manager.root, "ColumnWidthList"));
        QVERIFY(!host::hasKey(manager.root, "SelectCount"));
    }

    void applies()
    {
        ManagerDriver manager(
            m_module, layerTree({layer("A", 0), layer("B")}), [](const VnJsonPtr& root) {
                merge(root->GetDataJ("LayerList")(1), R"({"Off":false})");
            });
        manager.click(1, 2);
        QVERIFY(manager.isApplyEnabled());
        manager.record(0)->SetDataB("Selected", true); // A remainder of an earlier request.
        manager.press("applyButton");
        QCOMPARE(manager.host.log(), QStringList{request(4)});
        // The selection was sent with the request and is kept.
        QCOMPARE(manager.selectedRows(), QList<int>{1});
        QVERIFY(!manager.record(0)->GetDataB("Selected", true));
        QVERIFY(manager.shows(1, 2, "on")); // The table was filled again from the command's answer.
        QVERIFY(!manager.isApplyEnabled());
        QVERIFY(manager.dialog.window()->isVisible());
    }

    void worksWithoutCommandOrTree_data()
    {
        const Rows<QString> row("json");
        row("no command", layerTree({layer("A", 0), layer("B", 1, R"(,"Modified":true)")}));
        row("no tree", "");
    }

    void worksWithoutCommandOrTree()
    {
        QFETCH(QString, json);
        RecordingHost host;
        const QStringList buttons{"newLayerButton", "deleteLayerButton", "setCurrentButton",
            "applyButton", "cancelButton", "okButton"};
        for (const QString& name : buttons) {
            const VnJsonPtr root = json.isEmpty() ? VnJsonPtr() : tree(json);
            const auto dialog = m_module.createDialog("Dialog/CmdLayer", root);
            dialog.window()->show();
            child<QTableWidget>(dialog, "layerTable").selectRow(1);
            auto& button = child<QPushButton>(dialog, qPrintable(name));
            button.setEnabled(true);
            button.click();
            QCOMPARE(dialog.window()->isVisible(), buttons.indexOf(name) < 4);
        }
        QVERIFY(host.log().isEmpty());
    }

    void ignoresCellsThatAreNotThere()
    {
        ManagerDriver manager(m_module, layerTree({layer("0", 0), layer("A")}));
        QWidget& dialog = *manager.dialog.window();
        for (const auto& [row, column] :
            {std::pair(-1, 2), {2, 2}, {1, -1}, {1, manager.table->columnCount()}}) {
            for (const char* slot : {"slot_TableCellClicked", "slot_TableCellDoubleClicked"})
                QVERIFY(
                    QMetaObject::invokeMethod(&dialog, slot, Q_ARG(int, row), Q_ARG(int, column)));
            QVERIFY(QMetaObject::invokeMethod(&dialog, "slot_TableCellChanged",
                Q_ARG(OdString, L"x"), Q_ARG(int, row), Q_ARG(int, column)));
        }
        QVERIFY(manager.host.log().isEmpty());
        QVERIFY(!manager.isApplyEnabled());
    }

    void takesDataTwice()
    {
        ManagerDriver manager(m_module, layerTree({layer("A", 0), layer("B")}));
        const VnJsonPtr second = tree(layerTree({layer("C", 0)}));
        manager.dialog->setData(second, manager.invoker);
        QCOMPARE(manager.table->rowCount(), 1);
        auto* const group = manager.dialog.window()->findChild<QButtonGroup*>();
        QVERIFY(QMetaObject::invokeMethod(group, "buttonClicked", Q_ARG(int, 0)));
        // And not one request per connection.
        QCOMPARE(manager.host.log(), QStringList{request(0)});
        QVERIFY(host::hasKey(second, "marker") && !host::hasKey(manager.root, "marker"));
    }

private:
    ModuleFixture m_module;
};

QTEST_MAIN(TestLayerManager)

#include "tst_layermanager.moc"
