#include "managerfixture.h"

#include <QButtonGroup>
#include <QDialog>
#include <QScrollBar>

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

class TestLayerManager : public ManagerFixture
{
    Q_OBJECT

private slots:
    void tabLeavesTable()
    {
        open(layerTree({layer("0", 0)}));
        QTest::keyClick(m_table, Qt::Key_Tab);
        QVERIFY(find<QPushButton>("okButton").hasFocus());
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
        open(layerTree(records));
        for (int i = 0; i < more.size(); ++i)
            merge(record(i + 1), '{' + more[i].section('|', 1).mid(1) + '}');
        select(rows);
        press("deleteLayerButton");

        QCOMPARE(log(), (refused ? QStringList{refusal(refused, more.size())} : QStringList())
                            << request(1));
        for (int i = 0; i < after.size(); ++i) {
            QCOMPARE(recordText(i + 1), after[i]);
            QVERIFY(shows(
                i + 1, 0, record(i + 1)->GetDataI("CurLayer") == 2 ? "deleted" : "nocurrent"));
        }
        QVERIFY(isApplyEnabled());
        QCOMPARE(selectedRows(), rows);
    }

    void deletesByKey()
    {
        for (const char* focused : {"layerTable", "okButton"}) {
            open(layerTree({layer("0", 0), layer("A")}));
            select({0, 1});
            auto& widget = find<QWidget>(focused);
            widget.setFocus();
            typeKey(&widget, Qt::Key_Delete, "\x7f");
            QCOMPARE(m_host->takeLog(), (QStringList{refusal(1, 2), request(1)}));
            QVERIFY(shows(1, 0, "deleted"));
            QCOMPARE(m_table->currentRow(), 1); // The keyboard continues from this row.
        }
    }

    void deletesNothingUnselected()
    {
        open(layerTree({layer("0", 0), layer("A")}), {}, {});
        press("deleteLayerButton");
        QVERIFY(log().isEmpty());
        QVERIFY(!isApplyEnabled());
        QCOMPARE(m_tree->GetDataI("SelectCount", -1), 0);
        QVERIFY(!host::hasKey(m_tree, "LastIndex"));
        QVERIFY(!host::hasKey(m_tree, "ColumnWidthList"));
    }

    void addsLayer()
    {
        open(
            layerTree({layer("0", 0), layer("A"), layer("B", 1, R"(,"Selected":true)")}), addLayer);
        m_table->setColumnWidth(1, 222);
        select({1});
        press("newLayerButton");
        QCOMPARE(log(), QStringList{request(0)});
        QCOMPARE(m_table->rowCount(), 4);
        QCOMPARE(label("layerCountLabel"), "全部：共4个图层");
        QCOMPARE(selectedRows(), (QList<int>{1, 3}));
        QVERIFY(!record(2)->GetDataB("Selected", true));
        QCOMPARE(m_tree->GetDataJ("ColumnWidthList").ArrayCount(), m_table->columnCount());
        QCOMPARE(m_table->columnWidth(1), 222);
        QVERIFY(isApplyEnabled());
        press("newLayerButton"); // The widths are replaced, not appended.
        QCOMPARE(m_tree->GetDataJ("ColumnWidthList").ArrayCount(), m_table->columnCount());
    }

    void tellsOnlyDrawnWidths()
    {
        open(layerTree({layer("0", 0)}));
        m_table->setColumnWidth(1, 222);
        press("applyButton");
        QVERIFY(!host::hasKey(m_tree, "ColumnWidthList"));
        drawColumn(*m_table, 1, 180);
        const VnJsonPtr widths = m_tree->GetDataJ("ColumnWidthList");
        QCOMPARE(widths.ArrayCount(), m_table->columnCount());
        QCOMPARE(hostextras::intOf(widths(1), 0), 180);
    }

    void showsWholeLastRow()
    {
        QStringList records{layer("0", 0)};
        for (int i = 0; i < 60; ++i)
            records.append(layer(QString::number(i)));
        open(layerTree(records), addLayer);
        m_table->setColumnWidth(12, 4000);
        press("newLayerButton");
        const QRect last = m_table->visualItemRect(cell(61, 1));
        QVERIFY(m_table->horizontalScrollBar()->isVisible());
        QVERIFY(last.bottom() <= m_table->viewport()->rect().bottom());
    }

    void writesSelectionByRanges()
    {
        open(layerTree({layer("0", 0), layer("A"), layer("B"), layer("C"), layer("D")}), {},
            {"SelectCount", "LastIndex", "LastSelectedIndex"});
        select({3, 4, 1}); // The last selected range ends at row 1.
        press("newLayerButton");
        QCOMPARE(log(), QStringList{R"(request|0|0|{"LastIndex":4,)"
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
        QFETCH(bool, isCurrent);
        open(layerTree({layer("Old", 0), layer("New")}));
        merge(record(1), more);
        if (answer)
            m_host->answer(answer);
        select({1});
        press("setCurrentButton");
        QTEST(log().join('#'), "asked");
        QCOMPARE(
            label("currentLayerLabel"), QString(isCurrent ? "当前图层：New" : "当前图层：Old"));
        QTEST(record(1)->GetDataB("Off"), "isOff");
        QCOMPARE(record(0)->GetDataI("CurLayer"), isCurrent ? 1 : 0);
        QCOMPARE(record(0)->GetDataB("Modified"), isCurrent);
        QCOMPARE(record(1)->GetDataB("Modified"), isCurrent);
        QVERIFY(shows(0, 0, isCurrent ? "nocurrent" : "current"));
        QVERIFY(isApplyEnabled());
        QCOMPARE(m_tree->GetDataJ("ColumnWidthList").ArrayCount(), m_table->columnCount());
        if (isCurrent) { // The restrictions of the current layer move with it.
            click(1, 3);
            QVERIFY(!record(1)->GetDataB("Frozen"));
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
        open(layerTree({layer("A", 0), layer("B"), layer("C")}));
        select(rows);
        press("setCurrentButton");
        QVERIFY(log().isEmpty());
        QCOMPARE(label("currentLayerLabel"), "当前图层：A");
        QVERIFY(!record(0)->GetDataB("Modified"));
        QTEST(isApplyEnabled(), "enables");
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
        QFETCH(bool, changes);
        open(layerTree({layer("A", 0), layer("B", 1, R"(,"Selected":true)"), layer("C")}));
        merge(record(row), more);
        if (answer)
            m_host->answer(answer);
        doubleClick(row, 0);
        QTEST(log().join('#'), "asked");
        QCOMPARE(record(0)->GetDataI("CurLayer"), changes ? 1 : 0);
        QCOMPARE(record(1)->GetDataB("Selected"), !changes);
        QCOMPARE(host::hasKey(m_tree, "ColumnWidthList"), changes);
        QCOMPARE(isApplyEnabled(), changes);
        QTEST(record(row)->GetDataB("Off"), "isOff");
        if (changes)
            QCOMPARE(selectedRows(), QList<int>{row});
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
        open(layerTree({layer("0", 0), layer("A"), layer("layer1"), layer("étage")}));
        m_host->answer([&](const VnJsonPtr& question) {
            merge(question, QJsonObject{{"Success", true}, {"NewName", typed}});
            return 1;
        });
        doubleClick(1, 1);
        QCOMPARE(log().first(),
            QStringLiteral(R"(dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|{"DefaultName":"A"})"));
        QCOMPARE(log().mid(1).join('#'), refused);
        QTEST(text(1, 1), "stored");
        QTEST(toJsonObject(record(1))["LayerName"].toString(), "stored");
        QCOMPARE(cell(1, 1)->textAlignment(), 129);
        QVERIFY(!(cell(1, 1)->flags() & Qt::ItemIsEditable));
        QVERIFY(record(1)->GetDataB("Modified")); // Whether the name was refused or not.
        QVERIFY(isApplyEnabled());
        QVERIFY(!m_table->signalsBlocked());
    }

    void renamesOnlyLayerToAnything()
    {
        open(layerTree({layer("A", 0)}));
        m_host->answer(1, R"({"Success":true,"NewName":" <> "})");
        doubleClick(0, 1);
        QCOMPARE(text(0, 1), " <> ");
    }

    void refusesToRename_data()
    {
        const Rows<QString, bool> row("given", "refused");
        row("0", layer("0"), true);
        row("of a reference", layer("x|A", 1, R"(,"bDepend":true)"), true);
        row("looks like 0", layer("0 "), false);
        row("Defpoints", layer("Defpoints"), false);
    }

    void refusesToRename()
    {
        QFETCH(QString, given);
        QFETCH(bool, refused);
        open(layerTree({layer("C", 0), given}));
        m_host->setLogsTrees(false);
        if (!refused)
            m_host->answer(2, R"({"Success":false,"NewName":"no"})");
        doubleClick(1, 1);
        QCOMPARE(log().join('#'),
            QString(refused ? "message|不能重命名选定图层。\n\n不能重命名下列图层:\n    图层 0\n"
                              "    依赖外部参照的图层\n|Quenlith|64"
                            : "dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|"));
        QCOMPARE(toJsonObject(record(1)), toJsonObject(tree(given)));
        QCOMPARE(isApplyEnabled(), !refused);
    }

    void describes()
    {
        open(layerTree({layer("0", 0, R"(,"Description":"旧","bDepend":true)")}));
        m_host->answer(1, R"({"Success":true,"NewName":" <新> "})");
        doubleClick(0, 12);
        QCOMPARE(log(), QStringList{"dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|"
                                    R"({"DefaultName":"旧","Tip":"说明:"})"});
        QCOMPARE(text(0, 12), " <新> ");
        QCOMPARE(cell(0, 12)->textAlignment(), 129);
        QVERIFY(record(0)->GetDataB("Modified"));
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
        open(layerTree({layer("A", 0), layer("B")}));
        merge(record(1), modified);
        if (answer)
            m_host->answer(answer);
        QSignalSpy finished(qobject_cast<QDialog*>(m_dialog.window()), &QDialog::finished);
        if (button.isEmpty())
            typeKey(m_table, Qt::Key_Escape, "\x1b");
        else
            press(button.constData());
        QCOMPARE(finished.size(), 1);
        QTEST(finished[0][0].toInt(), "code");
        QTEST(log().join('#'), "log");
        QVERIFY(!host::hasKey(m_tree, "ColumnWidthList"));
        QVERIFY(!host::hasKey(m_tree, "SelectCount"));
    }

    void applies()
    {
        open(layerTree({layer("A", 0), layer("B")}), [](const VnJsonPtr& root) {
            merge(root->GetDataJ("LayerList")(1), R"({"Off":false})");
        });
        click(1, 2);
        QVERIFY(isApplyEnabled());
        record(0)->SetDataB("Selected", true); // A remainder of an earlier request.
        press("applyButton");
        QCOMPARE(log(), QStringList{request(4)});
        // The selection was sent with the request and is kept.
        QCOMPARE(selectedRows(), QList<int>{1});
        QVERIFY(!record(0)->GetDataB("Selected", true));
        QVERIFY(shows(1, 2, "on")); // The table was filled again from the command's answer.
        QVERIFY(!isApplyEnabled());
        QVERIFY(m_dialog.window()->isVisible());
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
        for (const char* name : {"newLayerButton", "deleteLayerButton", "setCurrentButton",
                 "applyButton", "cancelButton", "okButton"}) {
            m_dialog = {};
            m_dialog =
                m_module.createDialog("Dialog/CmdLayer", json.isEmpty() ? VnJsonPtr() : tree(json));
            m_dialog.window()->show();
            find<QTableWidget>("layerTable").selectRow(1);
            find<QPushButton>(name).setEnabled(true);
            press(name);
            QCOMPARE(
                isOpen(), qstrcmp(name, "cancelButton") != 0 && qstrcmp(name, "okButton") != 0);
        }
        QVERIFY(log().isEmpty());
    }

    void ignoresCellsThatAreNotThere()
    {
        open(layerTree({layer("0", 0), layer("A")}));
        QWidget& dialog = *m_dialog.window();
        for (const auto& [row, column] :
            {std::pair(-1, 2), {2, 2}, {1, -1}, {1, m_table->columnCount()}}) {
            for (const char* slot : {"slot_TableCellClicked", "slot_TableCellDoubleClicked"})
                QVERIFY(
                    QMetaObject::invokeMethod(&dialog, slot, Q_ARG(int, row), Q_ARG(int, column)));
            QVERIFY(QMetaObject::invokeMethod(&dialog, "slot_TableCellChanged",
                Q_ARG(OdString, L"x"), Q_ARG(int, row), Q_ARG(int, column)));
        }
        QVERIFY(log().isEmpty());
        QVERIFY(!isApplyEnabled());
    }

    void takesDataTwice()
    {
        open(layerTree({layer("A", 0), layer("B")}));
        const VnJsonPtr second = tree(layerTree({layer("C", 0)}));
        m_dialog->setData(second, m_invoker);
        QCOMPARE(m_table->rowCount(), 1);
        auto* const group = m_dialog.window()->findChild<QButtonGroup*>();
        QVERIFY(QMetaObject::invokeMethod(group, "buttonClicked", Q_ARG(int, 0)));
        // And not one request per connection.
        QCOMPARE(log(), QStringList{request(0)});
        QVERIFY(host::hasKey(second, "marker") && !host::hasKey(m_tree, "marker"));
    }
};

QTEST_MAIN(TestLayerManager)
#include "tst_layermanager.moc"
