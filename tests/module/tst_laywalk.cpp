#include "dialogfixture.h"
#include "modaldriver.h"
#include "settings.h"
#include "vnsettings.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

using namespace vnsi;

namespace {

// Layer 0 is current. One layer is off, one is starred, one is frozen, and one is frozen in
// viewports.
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

/// One character per layer: + on, - off, * starred and on, x starred and off, C current and on, c
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

class TestLaywalk : public DialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings = std::make_unique<QTemporaryDir>();
        host::setSettingsFolder(m_settings->path());
        m_answer = {};
        DialogFixture::init();
    }
    void cleanup()
    {
        DialogFixture::cleanup();
        host::setSettingsFolder({});
    }

    void opens()
    {
        open();
        QCOMPARE(textsOf(*m_list),
            (QStringList{"  0", "  WALL", "  wall-2", "* door", "  ice", "  a*[1]"}));
        QCOMPARE(shownRows(), "##.@..");
        QCOMPARE(title(), "图层漫游 - 图层数: 6");
        QVERIFY(!mayPurge() && !find<QCheckBox>("filterBox").isEnabled());
        QCOMPARE(find<QToolButton>("pickButton").toolTip(), "选择对象\n选择对象及其图层。");
        QVERIFY(m_requests.isEmpty() && !host::hasKey(m_tree, "marker"));
    }

    void acts_data()
    {
        const Rows<QStringList, QStringList, QString> row("acts", "requests", "rows");
        row("click leaves the star on", {"click 2"}, {"4 0: --+*--"}, "..#*..");
        row("back to the current layer", {"click 1", "ctrl 0"}, {"4 0: -+-*--", "4 0: C+-*--"},
            "##.*..");
        row("keys walk too", {"click 0", "key down"}, {"4 0: C--*--", "4 0: -+-*--"}, ".#.*..");
        row("click below the rows only disables", {"below"}, {}, "...*..");
        row("right button selects and pins nothing", {"right 2", "click 1", "right 1"},
            {"4 0: -+-*--"}, ".#.*..");
        row("double click stars", {"double 1"}, {"4 0: -+-*--", "4: -*-*--"}, ".@.*..");
        row("double click releases", {"double 3"}, {"4 0: ---*--", "4: ---+--"}, "...#..");
        row("release all turns off what is not selected", {"click 1", "releaseAll"},
            {"4 0: -+-*--", "4: -+----"}, ".#....");
        row("select all", {"selectAll"}, {"4: C++*++"}, "###@##");
        row("select all, beyond the filter", {"type ice", "key enter", "selectAll"},
            {"4: c--*+-", "4: C++*++"}, "#");
        row("clear all leaves the star on", {"clearAll"}, {"4: c--*--"}, "...*..");
        row("reverse", {"reverse"}, {"4: c-+*++"}, "..#*##");
        row("unreferenced are selected, not shown", {"selectUnused"}, {}, "..#*.#");

        row("filter by ENTER, in any case", {"type WALL*", "key enter"}, {"4: c++*--"}, "##");
        row("filter that nothing passes", {"type x", "key enter"}, {"4: c--*--"}, "");
        row("filter off by its box", {"type WALL*", "key enter", "press filterBox"},
            {"4: c++*--", "4: c++*--"}, ".##@..");
        row("typing alone changes nothing", {"type ice", "key enter", "type ", "type W", "leave"},
            {"4: c--*+-"}, "#");
        row("ENTER without a pattern ends the filter",
            {"type ice", "key enter", "type ", "key enter"}, {"4: c--*+-", "4: c--*+-"}, "...@..");
        row("saved pattern left standing", {"type W*", "saveFilter", "leave", "deleteFilter"},
            {"4: C+-*++"}, "##.@..");
        row("ENTER on a saved pattern",
            {"type W*", "saveFilter", "key enter", "leave", "deleteFilter"},
            {"4: c++*--", "4: c--*--"}, "...@..");
        row("chosen pattern",
            {"type x", "saveFilter", "type ice", "saveFilter", "key next", "deleteFilter", "type x",
                "deleteFilter"},
            {"4: c--*+-", "4: c--*--", "4: c--*--"}, "...@..");
        row("a filter that was not used turns nothing off",
            {"type W*", "saveFilter", "saveFilter", "deleteFilter"}, {"4: C+-*++"}, "##.@..");
        row("a filter turned off is deleted",
            {"type W*", "key enter", "saveFilter", "press filterBox", "deleteFilter"},
            {"4: c++*--", "4: c++*--", "4: c--*--"}, "...@..");
        row("what was walked to since stays",
            {"type W*", "key enter", "saveFilter", "press filterBox", "click 1", "deleteFilter"},
            {"4: c++*--", "4: c++*--", "4 0: -+-*--", "4: -+-*--"}, ".#.@..");

        for (const QString how : {"refuses", "fails"}) {
            row(qPrintable("filter: " + how), {"command " + how, "type W*", "key enter"},
                {"4: c++*--"}, "##.@..");
            row(qPrintable("another filter: " + how),
                {"type W*", "key enter", "command " + how, "type ice", "key enter",
                    "press filterBox"},
                {"4: c++*--", "4: c--*+-", "4: c++*--"}, "##");
            row(qPrintable("click: " + how),
                {"click 1", "command " + how, "click 2", "command obeys", "keep"},
                {"4 0: -+-*--", "4 0: --+*--", "4: -*-*--"}, ".@.*..");
            row(qPrintable("star: " + how), {"click 2", "command " + how, "keep", "releaseAll"},
                {"4 0: --+*--", "4: --**--", "4: --+---"}, "..#*..");
            row(qPrintable("purge: " + how),
                {"command " + how, "selectUnused", "press purgeButton"},
                {"12 [wall-2] [a*[1]]: C+-*++"}, "..#*.#");
        }
        for (const QString place : {"LayerStateMgr", "LayerStateMgr/LayerList", "parameter",
                 "parameter/LayerList", "result"})
            row(qPrintable("anew: " + place), {"command " + place, "double 1"},
                {"4 0: -+-*--", "4: -*-*--"}, ".@.@..");
        row("anew: another star stays", {"click 1", "keep", "command parameter", "double 3"},
            {"4 0: -+-*--", "4: -*-*--", "4 0: -*-*--", "4: -*-+--"}, ".@.#..");
    }

    void acts()
    {
        QFETCH(QStringList, acts);
        QFETCH(QString, rows); // One character for each row that passes the filter.
        open();
        perform(acts);
        QTEST(m_requests, "requests");
        QCOMPARE(shownRows(), rows);
        QCOMPARE(
            title(), rows.size() == 6
                         ? "图层漫游 - 图层数: 6"
                         : QStringLiteral("图层漫游 - 图层: 第 %1 层，共 6 层").arg(rows.size()));
        QCOMPARE(find<QCheckBox>("filterBox").isChecked(), rows.size() < 6);
        if (!m_requests.isEmpty())
            QCOMPARE(mayPurge(), rows.contains('#') || rows.contains('@'));
        QCOMPARE(m_filters->count(), 0);
        // The dialog works on a copy of the caller's tree.
        if (!acts.first().contains("LayerStateMgr"))
            QCOMPARE(summary(m_tree->GetDataJ("LayerStateMgr")), "C+-*++");
    }

    void copiesNamesAsTheyAre()
    {
        QStringList records;
        for (const char* name : {"A-WALL", "b]~c", "~,`x", "#@.*?[", "A_WALL", "1xz!yy["})
            records += QStringLiteral("{\"LayerName\":\"%1\"}").arg(name);
        open(treeText("[" + records.join(',') + "]"));
        perform({"click 0", "ctrl 1", "ctrl 2", "ctrl 3", "copyAsFilter"});
        QCOMPARE(m_filters->currentText(), "A-WALL,b]~c,`~`,``x,`#`@`.`*`?`[");
        perform({"key enter"});
        QCOMPARE(shownRows(), "####");
    }

    void deletingAFilterMarksItsLayers()
    {
        open();
        perform({"type d*", "key enter", "saveFilter", "deleteFilter"});
        const VnJsonPtr pinned = m_tree->GetDataJ("parameter/LayerList")(3);
        QVERIFY(pinned->GetDataB("Modified") && !pinned->GetDataB("Off"));
    }

    /// A request clears only its own answers. Without a command every answer has its default.
    void answersAreFresh_data()
    {
        const Rows<bool> row("hasCommand");
        row("silent command", true);
        row("no command", false);
    }

    void answersAreFresh()
    {
        QFETCH(bool, hasCommand);
        QJsonObject json = toJsonObject(tree(treeText(kLayers)));
        for (const char* stale : {"LayerCount", "SelectLayerCount", "SelectLayerEntitys"})
            json[stale] = 77;
        json["laywalkpickLNameS"] = "another's";
        open(QJsonDocument(json).toJson(), hasCommand);
        perform({"type W*", "key enter"});
        QCOMPARE(shownRows(), "##");
        QCOMPARE(m_tree->GetDataI("LayerCount"), 77);
        m_host->answer(2);
        trigger("verifyAction");
        QVERIFY2(m_host->log().last().endsWith(
                     R"({"LayerCount":2,"SelectLayerCount":2,"SelectLayerEntitys":0})"),
            qPrintable(m_host->log().last()));
        QCOMPARE(m_tree->GetDataSW("laywalkpickLNameS"), OdString(L"another's"));
    }

    void purges_data()
    {
        const Rows<QStringList, QString> row("acts", "request");
        row("only the other one", {"ctrl 0", "ctrl 2"}, "12 wall-2: ");
        row("several", {"ctrl 1", "ctrl 2", "ctrl 0"}, "12 [WALL] [wall-2]: ");
        row("layer 0 alone", {"ctrl 0"}, "");
        row("current layer alone", {"ctrl 4"}, "");
    }

    void purges()
    {
        QFETCH(QStringList, acts);
        QFETCH(QString, request);
        QString layers = kLayers; // Makes "ice" the current layer.
        layers.replace("\"CurLayer\":0", "\"CurLayer\":1")
            .replace("\"ice\",\"CurLayer\":1", "\"ice\",\"CurLayer\":0");
        open(treeText(layers));
        m_answer = [](const VnJsonPtr& root) {
            if (root->GetDataI("marker") == 12)
                root->SetDataJ("LayerStateMgr",
                    tree(R"({"LayerList":[{"LayerName":"left"},{"LayerName":"x","Off":true}]})"));
        };
        m_list->clearSelection();
        perform(acts);
        m_requests.clear();
        perform({"press purgeButton"});
        if (request.isEmpty()) {
            QVERIFY(m_requests.isEmpty());
            return;
        }
        // The current layer, which the walk hid, is made current again first.
        QCOMPARE(m_requests.size(), 2);
        QVERIFY(m_requests[0].startsWith("4: ") && m_requests[0].at(7) == 'c');
        QVERIFY2(m_requests[1].startsWith(request), qPrintable(m_requests[1]));
        QCOMPARE(textsOf(*m_list), (QStringList{"  left", "  x"}));
        QCOMPARE(shownRows(), "#.");
        QCOMPARE(title(), "图层漫游 - 图层数: 2");
    }

    void menuEnables_data()
    {
        const Rows<QString, QList<int>, QString, QString> row(
            // The column "enabled" lists the mnemonics of the enabled entries.
            "layers", "selected", "pattern", "enabled");
        row("nothing at all", "[]", {}, "", "");
        row("rows, a star among them", kLayers, {}, "", "ASCIUVN");
        row("unstarred selected", kLayers, {1}, "", "HASCIUVNO");
        row("star selected", kLayers, {1, 3}, "", "HRASCIUVNO");
        row("no star", R"([{"LayerName":"0"}])", {0}, "", "HSCIUVNO");
        row("new pattern", "[]", {}, "old*", "F");
        row("saved pattern", "[]", {}, "Old*", "D");
    }

    void menuEnables()
    {
        QFETCH(QString, layers);
        QFETCH(QList<int>, selected);
        QFETCH(QString, pattern);
        open(treeText(layers));
        m_filters->addItem("Old*");
        m_filters->setEditText(pattern);
        m_list->clearSelection();
        for (const int row : selected)
            m_list->item(row)->setSelected(true);
        emit m_list->customContextMenuRequested(QPoint(1, 1));
        QString enabled;
        for (const QAction* action : m_dialog.window()->findChild<QMenu*>()->actions())
            enabled += action->isEnabled() ? action->text().section('&', 1).left(1) : QString();
        QTEST(enabled, "enabled");
    }

    void verifyReportsOnly()
    {
        const auto report = m_module.createDialog(
            "Dialog/CmdLaywalk/Verify", tree(R"({"LayerCount":60,"SelectLayerCount":1200})"));
        QStringList shown;
        for (const char* key : {"LayerCount", "SelectLayerCount", "SelectLayerEntitys"}) {
            const auto& edit = child<QLineEdit>(report, key);
            shown.append(edit.text());
            QVERIFY(edit.isReadOnly());
        }
        QCOMPARE(shown, (QStringList{"60", "1200", "0"}));
    }

    void closes_data()
    {
        const Rows<bool, int> row("restores", "way");
        const char* const ways[] = {"button", "frame", "Esc"};
        for (int way = 0; way < 3; ++way) {
            row(qPrintable(QString("restores, ") + ways[way]), true, way);
            row(qPrintable(QString("asks, ") + ways[way]), false, way);
        }
    }

    void closes()
    {
        QFETCH(bool, restores);
        QFETCH(int, way);
        open();
        ModalDriver user;
        user.then([&](QDialog& dialog) {
            const auto close = [&] {
                if (way == 0)
                    press("closeButton");
                else if (way == 1)
                    dialog.close();
                else
                    QTest::keyClick(&dialog, Qt::Key_Escape);
            };
            m_filters->setEditText("A*");
            trigger("saveFilterAction");
            find<QCheckBox>("restoreBox").setChecked(restores);
            perform("click", "1");
            if (!restores) {
                m_host->answer(1);
                close();
                QVERIFY(dialog.isVisible());
                m_host->answer(0);
            }
            close();
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(m_dialog->doModal(), 2);
        const QStringList asked = m_host->log().filter("messageEx");
        QCOMPARE(asked.size(), restores ? 0 : 2);
        QCOMPARE(m_requests.size(), restores ? 2 : 1);
        if (restores)
            QCOMPARE(m_requests[1], "4: C+-*++");
        else
            QVERIFY(asked.first().startsWith(
                "messageEx|图层 - 图层状态更改|关闭对话框时某些图层状态可能会发生更改。希望执行什么"
                "操\n作？\n您可以通过选择\"退出时恢复\"选项保留以前的图层状态设置。|6|"));
        QCOMPARE(toText(vn_user_config(L"table_dialog")),
            QStringLiteral(R"({"FilterComboBoxList":[{"Item":"A*"}],"RecoverBoxChecked":%1})")
                .arg(restores ? 2 : 0));
        open();
        QCOMPARE(find<QCheckBox>("restoreBox").isChecked(), restores);
        QCOMPARE(m_filters->itemText(0), "A*");
        QCOMPARE(m_filters->currentIndex(), -1);
        QCOMPARE(m_filters->currentText(), QString());
    }

    void badInput_data()
    {
        const Rows<QString, int> row("json", "count");
        row("no tree", "{}", 0);
        row("tree of another kind", R"({"LayerStateMgr":[1]})", 0);
        row("no list", R"({"LayerStateMgr":{}})", 0);
        row("empty list", treeText("[]"), 0);
        row("records of other kinds", treeText(R"([1,"x",null,{}])"), 4);
        row("doubles", treeText(R"([{"LayerName":"a"},{"LayerName":"a"}])"), 2);
    }

    void badInput()
    {
        QFETCH(QString, json);
        QFETCH(int, count);
        vn_user_config(L"table_dialog")->SetDataSW("FilterComboBoxList", L"none");
        open(json);
        QCOMPARE(m_list->count(), count);
        QCOMPARE(title(), QStringLiteral("图层漫游 - 图层数: %1").arg(count));
        for (int dialogs = json.contains("Mgr\":{") ? 2 : 1; dialogs > 0; --dialogs)
            m_host->answer(2); // Without a tree no state can be saved.
        for (QAction* action : m_dialog.window()->findChild<QMenu*>()->actions())
            action->trigger();
        for (const QString& pattern : QStringList{QString(10000, '*') + "a[" + QString(10000, '?'),
                 "[a", QString("~*,").repeated(5000)})
            perform({"type " + pattern, "key enter"});
        QVERIFY(find<QPushButton>("closeButton").isEnabled());
    }

    void doublesGoTogether()
    {
        open(treeText(R"([{"LayerName":"a"},{"LayerName":"b"},{"LayerName":"a"}])"));
        perform({"click 0"});
        QVERIFY(m_requests.last().contains(": +-C"));
    }

private:
    void open(const QString& json = treeText(kLayers), bool hasCommand = true)
    {
        m_requests.clear();
        make("Dialog/CmdLaywalk", json, {"marker"});
        m_invoker->setAnswer([this](const VnJsonPtr& asked) {
            note(asked);
            if (m_answer)
                m_answer(asked);
        });
        if (!hasCommand)
            m_dialog = m_module.createDialog("Dialog/CmdLaywalk", m_tree);
        m_list = &find<QListWidget>("layerList");
        m_filters = &find<QComboBox>("filterCombo");
    }
    /// Records the code, the arguments and the layers.
    void note(const VnJsonPtr& asked)
    {
        const int code = asked->GetDataI("marker");
        const QJsonObject all = toJsonObject(asked);
        QString line = QString::number(code);
        const char* name = code == 4 ? "oldlaywalkLName" : "laywalkselLName";
        line += all.contains(name) ? " " + all[name].toString() : QString();
        for (const QJsonValue several : all["laywalkselLNameS"].toArray())
            line += " [" + several.toString() + "]";
        const VnJsonPtr parameter = asked->GetDataJ("parameter");
        m_requests.append(line + ": " + summary(parameter));
        QVERIFY(code != 4 || parameter->GetDataB("Modified"));
    }
    /// Changes how the command behaves from now on: it refuses, fails, obeys, or returns new layers
    /// at the named place.
    void changeCommand(const QString& how)
    {
        m_answer = [how](const VnJsonPtr& asked) {
            const VnJsonPtr layers = hostextras::copyOf(asked->GetDataJ("parameter"));
            if (how == "refuses")
                asked->SetDataI("result", 0);
            else if (how == "fails")
                throw std::runtime_error("no");
            else if (how.endsWith("/LayerList"))
                asked->SetDataJ(qPrintable(how), layers->GetDataJ("LayerList"));
            else if (how != "obeys")
                asked->SetDataJ(qPrintable(how), layers);
        };
    }
    void trigger(const QString& action)
    {
        m_dialog.window()->findChild<QAction*>(action)->trigger();
    }
    void perform(const QString& act, const QString& what)
    {
        QWidget* const area = m_list->viewport();
        const auto button = act == "right" ? Qt::RightButton : Qt::LeftButton;
        const auto modifier = act == "ctrl" ? Qt::ControlModifier : Qt::NoModifier;
        const QPoint at = m_list->visualItemRect(m_list->item(what.toInt())).center();
        if (act == "command")
            changeCommand(what);
        else if (act == "click" || act == "ctrl" || act == "double" || act == "right")
            QTest::mouseClick(area, button, modifier, at);
        else if (act == "below")
            QTest::mouseClick(area, button, {}, QPoint(5, area->height() - 3));
        else if (act == "type")
            m_filters->lineEdit()->setText(what);
        else if (act == "key")
            QTest::keyClick(what == "down" ? m_list : static_cast<QWidget*>(m_filters),
                what == "enter" ? Qt::Key_Return : Qt::Key_Down);
        else if (act == "leave")
            leaveFilters();
        else if (act == "press")
            find<QAbstractButton>(qPrintable(what)).click();
        else
            trigger(act + "Action");
        if (act == "double" || act == "right")
            QTest::mouseDClick(area, button, {}, at);
    }
    void perform(const QStringList& acts)
    {
        m_dialog.window()->show();
        for (const QString& act : acts)
            perform(act.section(' ', 0, 0), act.section(' ', 1));
    }
    /// Moves the focus away from the edit line.
    void leaveFilters() const
    {
        QFocusEvent away(QEvent::FocusOut, Qt::MouseFocusReason);
        QCoreApplication::sendEvent(m_filters->lineEdit(), &away);
    }
    /// One character per row: # selected, @ selected with a star, . not selected, * not selected
    /// with a star.
    QString shownRows() const
    {
        QString signs;
        for (int row = 0; row < m_list->count(); ++row) {
            const bool isStarred = m_list->item(row)->text().startsWith('*');
            signs +=
                m_list->item(row)->isSelected() ? (isStarred ? '@' : '#') : (isStarred ? '*' : '.');
        }
        return signs;
    }
    bool mayPurge() const { return isEnabled("purgeButton"); }

    RecordingInvoker::Answer m_answer;
    QStringList m_requests;
    QListWidget* m_list = nullptr;
    QComboBox* m_filters = nullptr;
    std::unique_ptr<QTemporaryDir> m_settings;
};

QTEST_MAIN(TestLaywalk)
#include "tst_laywalk.moc"
