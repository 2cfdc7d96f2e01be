#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "settings.h"
#include "trees.h"
#include "vnsettings.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using namespace vnsi;

namespace {

// Layer 0 is current; one is off, one starred, one frozen, one frozen in viewports.
const char kLayers[] = R"([{"LayerName":"0","CurLayer":0,"Used":true},)"
                       R"({"LayerName":"WALL","CurLayer":1,"Used":true},)"
                       R"({"LayerName":"wall-2","CurLayer":1,"Off":true},)"
                       R"({"LayerName":"door","CurLayer":1,"bAlwaysShow":true,"Used":true},)"
                       R"({"LayerName":"ice","CurLayer":1,"Frozen":true,"Used":true},)"
                       R"({"LayerName":"a*[1]","CurLayer":1,"VPortFrozen":true}])";

QString treeText(const QString& layers)
{
    return QStringLiteral(R"({"LayerStateMgr":{"LayerList":%1}})").arg(layers);
}

/// Each layer by a sign: + on, - off, * starred and on, x starred and off, C current and on, c
/// current and off.
QString summary(const VnJsonPtr& layerTree)
{
    QString layers;
    for (const QJsonValue layer : toJsonObject(layerTree).value("LayerList").toArray()) {
        const QJsonObject record = layer.toObject();
        const bool off = record["Off"].toBool();
        layers += record["CurLayer"] == 0          ? (off ? 'c' : 'C')
                  : record["bAlwaysShow"].toBool() ? (off ? 'x' : '*')
                                                   : (off ? '-' : '+');
    }
    return layers;
}

} // namespace

/// The walk with a command that notes what it is asked.
class Walk
{
public:
    explicit Walk(ModuleFixture& module, const QString& json = treeText(kLayers))
        : root(tree(json)),
          wrapper(module.createDialog("Dialog/CmdLaywalk", root,
              RecordingInvoker::create(host, {"marker"},
                  [this](const VnJsonPtr& asked) {
                      note(asked);
                      if (answer)
                          answer(asked);
                  }))),
          dialog(wrapper->widget()),
          list(child<QListWidget>("layerList")),
          filters(child<QComboBox>("filterCombo"))
    {
        host.setLogsTrees(false);
    }

    template <class T>
    T* child(const char* name) const
    {
        return ModuleFixture::child<T>(dialog, name);
    }
    /// Code, arguments and layers.
    void note(const VnJsonPtr& asked)
    {
        QString line = QString::number(asked->GetDataI("marker"));
        const QJsonObject all = toJsonObject(asked);
        for (const char* key : {"oldlaywalkLName", "laywalkselLName"})
            line += all.contains(key) ? " " + all[key].toString() : QString();
        for (const QJsonValue name : all["laywalkselLNameS"].toArray())
            line += " [" + name.toString() + "]";
        const VnJsonPtr parameter = asked->GetDataJ("parameter");
        requests.append(line + ": " + summary(parameter));
        QVERIFY(asked->GetDataI("marker") != 4 || parameter->GetDataB("Modified"));
    }
    void trigger(const QString& action) { dialog->findChild<QAction*>(action)->trigger(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {},
        Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(list->viewport(), button, modifiers, centre(row));
    }
    void perform(const QString& act, const QString& what)
    {
        const int row = what.toInt();
        QWidget* const area = list->viewport();
        if (act == "click" || act == "double")
            click(row);
        if (act == "double")
            QTest::mouseDClick(area, Qt::LeftButton, {}, centre(row));
        else if (act == "ctrl")
            click(row, Qt::ControlModifier);
        else if (act == "right")
            click(row, {}, Qt::RightButton);
        else if (act == "below")
            QTest::mouseClick(area, Qt::LeftButton, {}, QPoint(5, area->height() - 3));
        else if (act == "down")
            QTest::keyClick(list, Qt::Key_Down);
        else if (act == "type")
            filters->lineEdit()->setText(what);
        else if (act == "enter")
            QTest::keyClick(filters, Qt::Key_Return);
        else if (act == "box")
            child<QCheckBox>("filterBox")->click();
        else if (act.endsWith("Action"))
            trigger(act);
    }
    QPoint centre(int row) const { return list->visualItemRect(list->item(row)).center(); }
    void filter(const QString& pattern) const
    {
        filters->lineEdit()->setText(pattern);
        QTest::keyClick(filters, Qt::Key_Return);
    }
    /// # for a selected row, . for another.
    QString rows() const
    {
        QString signs;
        for (int row = 0; row < list->count(); ++row)
            signs += list->item(row)->isSelected() ? '#' : '.';
        return signs;
    }
    QStringList texts() const
    {
        QStringList all;
        for (int row = 0; row < list->count(); ++row)
            all += list->item(row)->text();
        return all;
    }
    bool mayPurge() const { return child<QPushButton>("purgeButton")->isEnabled(); }

    RecordingHost host;
    RecordingInvoker::Answer answer;
    QStringList requests;
    VnJsonPtr root;
    VnUiModeDialogBasePtr wrapper;
    QWidget* dialog;
    QListWidget* list;
    QComboBox* filters;
};

class TestLaywalk : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings = std::make_unique<QTemporaryDir>();
        host::setSettingsFolder(m_settings->path());
    }
    void cleanup() { host::setSettingsFolder({}); }

    void opens()
    {
        Walk walk(m_module);
        QCOMPARE(
            walk.texts(), (QStringList{"  0", "  WALL", "  wall-2", "* door", "  ice", "  a*[1]"}));
        QCOMPARE(walk.rows(), QStringLiteral("##.#.."));
        QCOMPARE(walk.dialog->windowTitle(), QStringLiteral("图层漫游 - 图层数: 6"));
        QVERIFY(!walk.mayPurge() && !walk.child<QCheckBox>("filterBox")->isEnabled());
        QCOMPARE(walk.child<QToolButton>("pickButton")->toolTip(),
            QStringLiteral("选择对象\n选择对象及其图层。"));
        QVERIFY(walk.requests.isEmpty() && !walk.root->HasKey("marker"));
    }

    void acts_data()
    {
        QTest::addColumn<QStringList>("acts");
        QTest::addColumn<QStringList>("requests");
        QTest::addColumn<QString>("rows"); // As many as pass the filter.
        const auto row = [](const char* name, const QStringList& acts, const QStringList& requests,
                             const char* rows) {
            QTest::newRow(name) << acts << requests << QString::fromUtf8(rows);
        };
        row("click leaves the star on", {"click 2"}, {"4 0: --+*--"}, "..#...");
        row("back to the current layer", {"click 1", "ctrl 0"}, {"4 0: -+-*--", "4 0: C+-*--"},
            "##....");
        row("keys walk too", {"click 0", "down"}, {"4 0: C--*--", "4 0: -+-*--"}, ".#....");
        row("click below the rows only disables", {"below"}, {}, "......");
        row("right button selects nothing", {"right 2"}, {}, "##.#..");
        row("double click stars", {"double 1"}, {"4 0: -+-*--", "4: -*-*--"}, ".#....");
        row("double click releases", {"double 3"}, {"4 0: ---*--", "4: ---+--"}, "...#..");
        row("release all turns off what is not selected", {"click 1", "releaseAllAction"},
            {"4 0: -+-*--", "4: -+----"}, ".#....");
        row("select all", {"selectAllAction"}, {"4: C++*++"}, "######");
        row("select all, beyond the filter", {"type ice", "enter", "selectAllAction"},
            {"4: c--*+-", "4: C++*++"}, "#");
        row("clear all leaves the star on", {"clearAllAction"}, {"4: c--*--"}, "......");
        row("reverse", {"reverseAction"}, {"4: c-+*++"}, "..#.##");
        row("unreferenced are selected, not shown", {"selectUnusedAction"}, {}, "..#..#");
        row("filter by ENTER, in any case", {"type WALL*", "enter"}, {"4: c++*--"}, "##");
        row("filter that nothing passes", {"type x", "enter"}, {"4: c--*--"}, "");
        row("filter off by its box", {"type WALL*", "enter", "box"}, {"4: c++*--", "4: c++*--"},
            ".###..");
        row("emptied pattern is no filter", {"type ice", "enter", "type "},
            {"4: c--*+-", "4: c--*+-"}, "...#..");
        row("a name like a pattern, copied, is itself alone",
            {"click 5", "copyAsFilterAction", "enter"}, {"4 0: ---*-+", "4: ---*-+"}, "#");
        row("deleting the filter turns off what it let through",
            {"type W*", "enter", "saveFilterAction", "saveFilterAction", "deleteFilterAction"},
            {"4: c++*--", "4: c--*--"}, "...#..");
        row("a filter that was not used turns nothing off",
            {"type W*", "saveFilterAction", "deleteFilterAction"}, {"4: C+-*++"}, "##.#..");
    }

    void acts()
    {
        QFETCH(QStringList, acts);
        QFETCH(QString, rows);
        Walk walk(m_module);
        walk.dialog->show();
        for (const QString& act : acts)
            walk.perform(act.section(' ', 0, 0), act.section(' ', 1));
        QTEST(walk.requests, "requests");
        QCOMPARE(walk.rows(), rows);
        QCOMPARE(walk.dialog->windowTitle(),
            rows.size() == 6
                ? QStringLiteral("图层漫游 - 图层数: 6")
                : QStringLiteral("图层漫游 - 图层: 第 %1 层，共 6 层").arg(rows.size()));
        if (!walk.requests.isEmpty())
            QCOMPARE(walk.mayPurge(), rows.contains('#'));
        for (int row = 0; row < walk.list->count(); ++row) // The star as the last request has it.
            QVERIFY(rows.size() < 6 || walk.requests.isEmpty() ||
                    walk.list->item(row)->text().startsWith('*') ==
                        (walk.requests.last().right(6)[row] == '*'));
        QCOMPARE(walk.filters->count(), 0);
        // The caller's tree is not the one worked on.
        QCOMPARE(summary(walk.root->GetDataJ("LayerStateMgr")), QStringLiteral("C+-*++"));
    }

    void purges_data()
    {
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<QString>("request");
        QTest::newRow("only the other one") << QList<int>{0, 2} << "12 wall-2: ";
        QTest::newRow("several") << QList<int>{1, 2, 0} << "12 [WALL] [wall-2]: ";
        QTest::newRow("layer 0 alone") << QList<int>{0} << QString();
        QTest::newRow("current layer alone") << QList<int>{4} << QString();
    }

    void purges()
    {
        QFETCH(QList<int>, rows);
        QFETCH(QString, request);
        QString layers = kLayers; // The current layer is "ice".
        layers.replace("\"CurLayer\":0", "\"CurLayer\":1")
            .replace("\"ice\",\"CurLayer\":1", "\"ice\",\"CurLayer\":0");
        Walk walk(m_module, treeText(layers));
        walk.answer = [](const VnJsonPtr& root) {
            if (root->GetDataI("marker") == 12)
                root->SetDataJ("LayerStateMgr",
                    tree(R"({"LayerList":[{"LayerName":"left"},{"LayerName":"x","Off":true}]})"));
        };
        walk.dialog->show();
        walk.list->clearSelection();
        for (const int row : rows)
            walk.click(row, Qt::ControlModifier);
        walk.requests.clear();
        walk.child<QPushButton>("purgeButton")->click();
        if (request.isEmpty()) {
            QVERIFY(walk.requests.isEmpty());
            return;
        }
        // The current layer, hidden by the walk, is current again before.
        QCOMPARE(walk.requests.size(), 2);
        QVERIFY(walk.requests[0].startsWith("4: ") && walk.requests[0].at(7) == 'c');
        QVERIFY2(walk.requests[1].startsWith(request), qPrintable(walk.requests[1]));
        QCOMPARE(walk.texts(), (QStringList{"  left", "  x"}));
        QCOMPARE(walk.rows(), QStringLiteral("#."));
        QCOMPARE(walk.dialog->windowTitle(), QStringLiteral("图层漫游 - 图层数: 2"));
    }

    void failedRequestLeavesTheList()
    {
        Walk walk(m_module);
        walk.answer = [](const VnJsonPtr& root) {
            root->SetDataJ("LayerStateMgr", tree("{}"));
            throw std::runtime_error("no");
        };
        walk.list->item(2)->setSelected(true);
        QMetaObject::invokeMethod(walk.dialog, "slot_ClearBtnClicked");
        QCOMPARE(walk.list->count(), 6);
        QCOMPARE(walk.host.log().filter("message|").size(), 1);
    }

    void menuEnables_data()
    {
        QTest::addColumn<QString>("layers");
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("enabled"); // The mnemonics.
        QTest::newRow("nothing at all") << "[]" << QList<int>{} << ""
                                        << "";
        QTest::newRow("rows, a star among them") << kLayers << QList<int>{} << ""
                                                 << "ASCIUVN";
        QTest::newRow("unstarred selected") << kLayers << QList<int>{1} << ""
                                            << "HASCIUVNO";
        QTest::newRow("star selected") << kLayers << QList<int>{1, 3} << ""
                                       << "HRASCIUVNO";
        QTest::newRow("no star") << R"([{"LayerName":"0"}])" << QList<int>{0} << ""
                                 << "HSCIUVNO";
        QTest::newRow("new pattern") << "[]" << QList<int>{} << "old*"
                                     << "F";
        QTest::newRow("saved pattern") << "[]" << QList<int>{} << "Old*"
                                       << "D";
    }

    void menuEnables()
    {
        QFETCH(QString, layers);
        QFETCH(QList<int>, selected);
        QFETCH(QString, pattern);
        Walk walk(m_module, treeText(layers));
        walk.filters->addItem("Old*");
        walk.filters->setEditText(pattern);
        walk.list->clearSelection();
        for (const int row : selected)
            walk.list->item(row)->setSelected(true);
        emit walk.list->customContextMenuRequested(QPoint(1, 1));
        QString enabled;
        for (const QAction* action : walk.dialog->findChild<QMenu*>()->actions())
            enabled += action->isEnabled() ? action->text().section('&', 1).left(1) : QString();
        QTEST(enabled, "enabled");
    }

    void verifyReportsOnly()
    {
        const auto report = m_module.createDialog(
            "Dialog/CmdLaywalk/Verify", tree(R"({"LayerCount":60,"SelectLayerCount":1200})"));
        QStringList shown;
        for (const char* key : {"LayerCount", "SelectLayerCount", "SelectLayerEntitys"}) {
            const auto* edit = ModuleFixture::child<QLineEdit>(report->widget(), key);
            shown.append(edit->text());
            QVERIFY(edit->isReadOnly());
        }
        QCOMPARE(shown, (QStringList{"60", "1200", "0"}));
    }

    void closes_data()
    {
        QTest::addColumn<bool>("restores");
        QTest::addColumn<int>("way"); // Button, frame, Esc.
        for (int way = 0; way < 3; ++way) {
            QTest::addRow("restores, way %d", way) << true << way;
            QTest::addRow("asks, way %d", way) << false << way;
        }
    }

    void closes()
    {
        QFETCH(bool, restores);
        QFETCH(int, way);
        Walk walk(m_module);
        ModalDriver user;
        user.then([&](QDialog& dialog) {
            const auto close = [&] {
                if (way == 0)
                    walk.child<QPushButton>("closeButton")->click();
                else if (way == 1)
                    dialog.close();
                else
                    QTest::keyClick(&dialog, Qt::Key_Escape);
            };
            walk.filters->setEditText("A*");
            walk.trigger("saveFilterAction");
            walk.child<QCheckBox>("restoreBox")->setChecked(restores);
            walk.click(1);
            if (!restores) {
                walk.host.answer(1);
                close();
                QVERIFY(dialog.isVisible());
                walk.host.answer(0);
            }
            close();
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(walk.wrapper->doModal(), 2);
        const QStringList asked = walk.host.log().filter("messageEx");
        QCOMPARE(asked.size(), restores ? 0 : 2);
        QCOMPARE(walk.requests.size(), restores ? 2 : 1);
        if (restores)
            QCOMPARE(walk.requests[1], QStringLiteral("4: C+-*++"));
        else
            QVERIFY(asked.first().startsWith(
                "messageEx|图层 - 图层状态更改|关闭对话框时某些图层状态可能会发生更改。希望执行什么"
                "操\n作？\n您可以通过选择\"退出时恢复\"选项保留以前的图层状态设置。|6|"));
        QCOMPARE(toText(vn_user_config(L"table_dialog")),
            QStringLiteral(R"({"FilterComboBoxList":[{"Item":"A*"}],"RecoverBoxChecked":%1})")
                .arg(restores ? 2 : 0));
        Walk again(m_module);
        QCOMPARE(again.child<QCheckBox>("restoreBox")->isChecked(), restores);
        QCOMPARE(again.filters->itemText(0), QStringLiteral("A*"));
        QCOMPARE(again.filters->currentIndex(), -1);
        QCOMPARE(again.filters->currentText(), QString());
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("json");
        QTest::addColumn<int>("count");
        QTest::newRow("no tree") << "{}" << 0;
        QTest::newRow("tree of another kind") << R"({"LayerStateMgr":[1]})" << 0;
        QTest::newRow("no list") << R"({"LayerStateMgr":{}})" << 0;
        QTest::newRow("empty list") << treeText("[]") << 0;
        QTest::newRow("records of other kinds") << treeText(R"([1,"x",null,{}])") << 4;
        QTest::newRow("doubles") << treeText(R"([{"LayerName":"a"},{"LayerName":"a"}])") << 2;
    }

    void badInput()
    {
        QFETCH(QString, json);
        QFETCH(int, count);
        vn_user_config(L"table_dialog")->SetDataSW("FilterComboBoxList", L"none");
        Walk walk(m_module, json);
        QCOMPARE(walk.list->count(), count);
        QCOMPARE(walk.dialog->windowTitle(), QStringLiteral("图层漫游 - 图层数: %1").arg(count));
        for (int dialogs = json.contains("Mgr\":{") ? 2 : 1; dialogs > 0; --dialogs)
            walk.host.answer(2); // Without a tree no state can be saved.
        for (QAction* action : walk.dialog->findChild<QMenu*>()->actions())
            action->trigger();
        for (const QString& pattern : {QString(10000, '*') + "a[" + QString(10000, '?'),
                 QStringLiteral("[a"), QString("~*,").repeated(5000)}) {
            walk.perform("type", pattern);
            walk.perform("enter", {});
        }
        QVERIFY(walk.child<QPushButton>("closeButton")->isEnabled());
    }

    void doublesGoTogether()
    {
        Walk walk(m_module, treeText(R"([{"LayerName":"a"},{"LayerName":"b"},{"LayerName":"a"}])"));
        walk.dialog->show();
        walk.click(0);
        QVERIFY(walk.requests.last().contains(": +-C"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_settings;
    ModuleFixture m_module;
};

QTEST_MAIN(TestLaywalk)

#include "tst_laywalk.moc"
