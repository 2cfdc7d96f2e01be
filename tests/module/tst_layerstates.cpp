#include "dialogfixture.h"
#include "sysvars.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTextEdit>

#include <stdexcept>

using namespace vnsi;

namespace {

constexpr int kDescription = 3;
constexpr int kNotAsked = 9;

/// Two states of the drawing, one of an external reference, and one with an unknown bit in its
/// mask.
const QString kTree = QStringLiteral(R"({"LayerStateMgr":[{},{"currentLState":"B","LayerStateList":[
    {"LayerStateName":"A","space":"模型","isSame2DWG":true,"desc":"first","LayerStateMaskIs":1057},
    {"LayerStateName":"B","space":"布局","isSame2DWG":false,"desc":"","Selected":true},
    {"LayerStateName":"X|R","space":"外部参照","LayerStateMaskIs":2047},
    {"LayerStateName":"D","space":"模型","LayerStateMaskIs":2050}]},{}]})");

const QString kEditTree = QStringLiteral(R"({"LayerStateMgr":[{},{},{"selectItemName":"A",
    "LayerStateList":[
    {"LayerName":"0","CurLayer":1,"LineWidth":-3,"Color":{"clrMethod":195,"selectClr":1}},
    {"LayerName":"gone","Delete":true},
    {"LayerName":"Wall","Off":true,"LineWidth":50,"Transparency":20,"linetype":{"name":"Dashed"}},
    {"LayerName":"Door","PlotStyle":"Color_3","CurLayer":0}],
    "LayerList":[{"LayerName":"0"},{"LayerName":"WALL"},{"LayerName":"Door"},
    {"LayerName":"New","CurLayer":1,"Description":"d"},{"LayerName":"gone"}]}]})");

constexpr char kManager[] = "Dialog/CmdLayerState";
constexpr char kElements[] = "LayerStateMgr";

const QString kBadCharacters = "名称包含不支持的字符。\n 不支持以下字符：\n  \\<>/?\":;*|,=`|";

QString text(const VnJsonPtr& node, const char* key)
{
    return vnutOdStringToQString(node->GetDataSW(key));
}

/// The values of `key` in the objects of a list, separated by blanks.
QString texts(const VnJsonPtr& list, const char* key)
{
    QStringList texts;
    for (int i = 0; i < list.ArrayCount(); ++i)
        texts += text(list(i), key);
    return texts.join(' ');
}

/// A button of the manager: what it asks, how the host answers that, and which request follows.
struct ButtonRow
{
    const char* name; ///< The button's name; null for a click on the description.
    int answer;
    const char* members; ///< The members of the dialog's answer.
    const char* asked;   ///< The beginning of the line in the log.
    const char* sent;
    bool fillsAgain;

    int code() const { return QByteArray(sent).split('|').at(1).toInt(); }
};

const ButtonRow kButtons[] = {
    {"newButton", 1, R"({"LayerStateNewName":"N","desc":"d"})",
        "dialog|Dialog/CmdLayer|Dialog/CmdLayerStateNew|{",
        R"(request|1|1|{"LayerStateNewName":"N","desc":"d"})", true},
    {"deleteButton", 6, "{}", "messageEx|图层 - 删除图层状态|是否确实要删除 A?|4|1|64",
        R"(request|2|1|{"DeleteNameOne":true,"LayerStateDeleteName":"A"})", true},
    {"renameButton", 1, R"({"Success":true,"NewName":"N"})",
        R"(dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|{"DefaultName":"A"})",
        R"(request|3|1|{"NewName":"N","OldName":"A"})", true},
    {"saveButton", 6, "{}", "messageEx|图层 - 覆盖图层状态|是否要覆盖A?|4|1|64",
        R"(request|4|1|{"LayerStateMask":1057,"LayerStateSaveName":"A"})", true},
    {"restoreButton", kNotAsked, "{}", "",
        R"(request|5|1|{"LStateRestoreName":"A","LStateTCheckBox":0,"LStateWCheckBox":false,)"
        R"("LayerStateMask":1057})",
        false},
    {"importButton", 1, R"({"filePaths":["/a.las"],"filePath":"/a.las"})",
        R"!(dialog|Dialog/Common|FileDialogBox|{"MutiFile":false,"Open":true,)!"
        R"!("caption":"输入图层状态","defFilter":"图层状态(*.las)",)!"
        R"!("filter":"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)"})!",
        R"(request|6|1|{"LStateRefLayer":false,"LStatefilePaths":["/a.las"]})", true},
    {"exportButton", 1, R"({"filePath":"/x.las"})",
        R"!(dialog|Dialog/Common|FileDialogBox|{"MutiFile":false,"Open":false,)!"
        R"!("caption":"输出图层状态","defFilter":"图层状态(*.las)","dir":"A",)!"
        R"!("filter":"图层状态(*.las)"})!",
        R"(request|7|1|{"LStateName":"A","LStatefilePathsSW":"/x.las"})", false},
    {nullptr, 1, R"({"Success":true,"NewName":""})",
        R"(dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|{"DefaultName":"first"})",
        R"(request|8|1|{"NewDescName":"","OldName":"A"})", true},
    {"editButton", 1, "{}", "dialog|Dialog/CmdLayer|Dialog/CmdLayerStateEdit|{",
        R"(request|0|2|{"selectItemName":"A"})", false},
};

const QStringList kArguments{"LayerStateNewName", "desc", "DeleteNameOne", "LayerStateDeleteName",
    "OldName", "NewName", "LayerStateMask", "LayerStateSaveName", "LStateRestoreName",
    "LStateTCheckBox", "LStateWCheckBox", "LStateRefLayer", "LStatefilePaths", "LStateName",
    "LStatefilePathsSW", "NewDescName", "selectItemName"};

/// Something that a command may do to the elements while it answers.
struct MischiefRow
{
    const char* name;
    void (*act)(const VnJsonPtr& root);
    int rowsLeft;
};

const MischiefRow kMischiefs[] = {
    {"replaced",
        [](const VnJsonPtr& root) {
            merge(root, QStringLiteral(R"({"LayerStateMgr":[{},{"LayerStateList":[
                {"LayerStateName":"Other"}]},{}]})"));
        },
        1},
    {"emptied", [](const VnJsonPtr& root) { host::clear(*root->GetDataJ(kElements)); }, 0},
    {"removed", [](const VnJsonPtr& root) { hostextras::removeKey(*root, kElements); }, 0},
};

} // namespace

Q_DECLARE_METATYPE(const ButtonRow*)
Q_DECLARE_METATYPE(const MischiefRow*)

/// Tests the four dialogs of layer states by what they show, ask and send.
class TestLayerStates : public DialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        DialogFixture::init();
        host::setVar(L"TILEMODE", 1);
        const VnJsonPtr config = vn_user_config(L"LayerState_dialog");
        for (const char* key : {"isRefLayerCBox", "isWCheckBox", "isTCheckBox", "IsExpand"})
            hostextras::removeKey(*config, key);
    }

    /// The last row is selected, whatever the records say.
    void filled()
    {
        open(kManager, kTree);
        auto& table = find<QTableWidget>("stateTable");
        QCOMPARE(rowTexts(table),
            QStringList({"A|模型|是|first", "B|布局|否|", "X|R|外部参照|否|", "D|模型|否|"}));
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        QVERIFY(table.item(3, 0)->isSelected());
        QCOMPARE(table.minimumWidth(), 360);
        QCOMPARE(table.maximumWidth(), 360);
        QCOMPARE(find<QLabel>("statusLabel").text(), "当前图层状态: B");
        find<QCheckBox>("referenceBox").click();
        QCOMPARE(table.rowCount(), 3);
        QVERIFY(table.item(2, 0)->isSelected());

        m_dialog = m_module.createDialog(kManager, {});
        QCOMPARE(find<QLabel>("statusLabel").text(), "当前图层状态: *未保存*");
        QVERIFY(!isEnabled("restoreButton"));
    }

    /// The eleven boxes are in the order of the screen, each has its bit, and they show the mask of
    /// the selected state.
    void maskBoxes()
    {
        auto& table = openManager({3});
        const auto& panel = find<QWidget>("maskPanel");
        QStringList shown;
        for (const QCheckBox* box : panel.findChild<QGroupBox*>()->findChildren<QCheckBox*>())
            shown += box->text() + box->objectName().mid(7);
        QCOMPARE(shown.join(' '),
            "开/关(&O)1 冻结/解冻(&F)2 在当前视口中的可见性(&U)512 锁定/解锁(&K)4 "
            "打印/不打印(&P)8 颜色(&L)32 线型(&P)64 线宽(&G)128 透明度(&T)1024 "
            "打印样式(&V)256 新视口冻结/解冻(&Z)16");
        const auto checkedBits = [&] {
            int bits = 0;
            for (const QCheckBox* box : panel.findChildren<QCheckBox*>())
                bits |= box->isChecked() ? box->objectName().mid(7).toInt() : 0;
            return bits;
        };
        QCOMPARE(checkedBits(), 2); // 2050 without its unknown bit.
        selectRows(table, {0});
        QCOMPARE(checkedBits(), 1057);
        press("selectAllButton");
        QCOMPARE(checkedBits(), 2047);
        press("clearAllButton");
        QCOMPARE(checkedBits(), 0);
        QVERIFY(panel.isHidden());
        press("extendButton");
        QVERIFY(!panel.isHidden());
    }

    void enabled_data()
    {
        const Rows<QList<int>, int, QString> row("rows", "tileMode", "enabled");
        const QString one = "save edit rename delete export restore turnOff ";
        row("one in model space", {0}, 1, one + "1 2 32");
        row("one in a layout", {1}, 0, one + "override 512 32");
        row("none", {}, 1, "");
        row("none in a layout", {}, 0, "");
        row("several", {0, 1}, 1, "delete");
        row("several with a reference's", {0, 2}, 1, "");
        row("a reference's", {2}, 1, "restore turnOff 1 2 32");
        row("a reference's in a layout", {2}, 0, "restore turnOff override 512 32");
    }

    void enabled()
    {
        QFETCH(QList<int>, rows);
        QFETCH(int, tileMode);
        host::setVar(L"TILEMODE", static_cast<OdInt16>(tileMode));
        openManager(rows);
        QStringList enabled;
        const auto note = [&](const QString& before, const QString& shown, const QString& after) {
            if (isEnabled((before + shown + after).toUtf8().constData()))
                enabled += shown;
        };
        for (const char* button : {"save", "edit", "rename", "delete", "export", "restore"})
            note({}, button, "Button");
        for (const char* box : {"turnOff", "override"})
            note({}, box, "Box");
        for (const char* bit : {"1", "2", "512", "32"})
            note("maskBox", bit, {});
        QTEST(enabled.join(' '), "enabled");
    }

    void requests_data()
    {
        const Rows<const ButtonRow*> row("button");
        for (const ButtonRow& button : kButtons)
            row(button.name ? button.name : "description", &button);
    }

    /// Each button shows its dialog and sends its request. A saved state is selected again.
    void requests()
    {
        QFETCH(const ButtonRow*, button);
        auto& table = openManager({0}, kArguments);
        press(*button);
        QStringList log = m_host->takeLog();
        QCOMPARE(log.takeAt(button->code() == 0 ? 0 : log.size() - 1), QString(button->sent));
        const QString asked(button->asked);
        QCOMPARE(log.join('&').left(asked.size()), asked);
        if (button->code() == 4)
            QCOMPARE(table.currentRow(), 0);
    }

    void renamed_data()
    {
        const Rows<QString, QString> row("name", "outcome");
        row("letter case", "a", "");
        row("empty", "", "message|名称 必须至少有一个字符长。|图层状态 - 文字长度|64");
        row("in use", "b",
            "message|名称 b 已在使用。\n您需要输入其他名称。|图层状态 - 名称已经存在|64");
        for (const QChar c : QStringLiteral("\\<>/\":;?*|,=`"))
            row(qPrintable(QString(c)), QString("n" + QString(c)),
                "message|" + kBadCharacters + "图层状态 - 不支持的字符|64");
    }

    void renamed()
    {
        QFETCH(QString, name);
        openManager({0});
        m_host->answer([name](const VnJsonPtr& asked) {
            asked->SetDataB("Success", true);
            asked->SetDataSW("NewName", vnutQStringToOdString(name));
            return 1;
        });
        press("renameButton");
        QTEST(log().mid(1).join('&'), "outcome");
    }

    void deletedSeveral_data()
    {
        const Rows<QList<int>, QString> row("answers", "sent");
        row("each", {0, 0, 0}, "one A,one B,one D");
        row("no and yes", {2, 0, 2}, "one B");
        row("all from the second", {2, 1}, "all B D");
        row("cancelled", {0, 3}, "one A");
        row("closed", {-1}, "");
    }

    void deletedSeveral()
    {
        QFETCH(QList<int>, answers);
        auto& table = openManager({0, 1, 3});
        QStringList sent;
        m_invoker->setAnswer([&](const VnJsonPtr& node) {
            sent +=
                node->GetDataB("DeleteNameOne")
                    ? "one " + text(node, "LayerStateDeleteName")
                    : "all " + texts(node->GetDataJ("LayerStateDeleteNames"), "LayerSDeleteName");
        });
        for (const int answer : answers)
            m_host->answer(answer);
        QVERIFY(QTest::qWaitForWindowActive(table.window()));
        QTest::keyClick(&table, Qt::Key_Delete);
        QCOMPARE(log().first(), "messageEx|图层 - 删除图层状态|是否确实要删除图层状态 A?|6|1|64|是|"
                                "全部删除|否|取消");
        QTEST(sent.join(','), "sent");
    }

    void imported_data()
    {
        const Rows<QString, QString> row("answer", "codes");
        row("nothing came", "{}", "6");
        row("taken in", R"({"LayerStateListRefOK":true})", "6");
        row("restored", R"({"LayerStateListRefOK":true,"LayerStateYesNoRestore":true})", "6 5");
    }

    /// An answer that an earlier import left behind does not count.
    void imported()
    {
        QFETCH(QString, answer);
        openManager({0});
        element(1)->SetDataB("LayerStateYesNoRestore", true);
        m_invoker->setAnswer([&](const VnJsonPtr& node) {
            QVERIFY(node->GetDataJ("LayerStateList1") == node->GetDataJ("LayerStateList"));
            if (node->GetDataI("marker") == 6)
                merge(node, answer);
        });
        m_host->answer(1, QStringLiteral(R"({"filePaths":["/a.las"]})"));
        press("importButton");
        QTEST(codes(), "codes");
    }

    /// Export applies to the selected row and needs a path; a description belongs to the selected
    /// row.
    void selectedOrCurrent()
    {
        auto& table = openManager({0}, {"LStateName"});
        table.selectionModel()->setCurrentIndex(
            table.model()->index(1, 0), QItemSelectionModel::NoUpdate);
        for (const char* answer : {R"({"filePath":"/x.las"})", R"({"filePath":""})"}) {
            m_host->answer(1, QString(answer));
            press("exportButton");
        }
        emit table.itemClicked(table.item(1, kDescription));
        QCOMPARE(log().size(), 3);
        QVERIFY(log().first().contains(R"("dir":"A")"));
        QCOMPARE(log().at(1), R"(request|7|1|{"LStateName":"A"})");
    }

    void elementsChange_data()
    {
        const Rows<const ButtonRow*, const MischiefRow*> row("button", "mischief");
        for (const ButtonRow& button : kButtons) {
            for (const MischiefRow& mischief : kMischiefs)
                row(qPrintable(QString("%1 %2").arg(button.code()).arg(mischief.name)), &button,
                    &mischief);
        }
    }

    /// Answers are read from the node that was sent, and the list from the tree as it is
    /// afterwards.
    void elementsChange()
    {
        QFETCH(const ButtonRow*, button);
        QFETCH(const MischiefRow*, mischief);
        auto& table = openManager({0});
        m_invoker->setAnswer([&](const VnJsonPtr& node) {
            for (const char* key :
                {"LayerStateOKClose", "LayerStateListRefOK", "LayerStateYesNoRestore"})
                node->SetDataB(key, node->GetDataI("marker") == button->code());
            mischief->act(m_tree);
        });
        press(*button);
        QCOMPARE(table.rowCount(), button->fillsAgain ? mischief->rowsLeft : 4);
        const bool restores = button->code() == 6 && mischief->rowsLeft > 0;
        QCOMPARE(codes(), QString::number(button->code()) + (restores ? " 5" : ""));
        QCOMPARE(isOpen(), button->code() != 5);
    }

    void deletesOnWithoutElements_data()
    {
        const Rows<const MischiefRow*> row("mischief");
        for (const MischiefRow& mischief : kMischiefs)
            row(mischief.name, &mischief);
    }

    /// The elements disappear in the middle of several deletions, or between the editor's two
    /// requests.
    void deletesOnWithoutElements()
    {
        QFETCH(const MischiefRow*, mischief);
        const bool hasElements = mischief->rowsLeft > 0;
        openManager({0, 1});
        m_invoker->setAnswer([&](const VnJsonPtr&) { mischief->act(m_tree); });
        m_host->answer(0);
        m_host->answer(0);
        press("deleteButton");
        QCOMPARE(codes(), QString(hasElements ? "2 2" : "2"));

        m_host->takeLog();
        selectRows(openEditor(), {1});
        m_invoker->setAnswer([&](const VnJsonPtr&) { mischief->act(m_tree); });
        press("deleteLayerButton");
        press("okButton");
        QCOMPARE(codes(), QString(hasElements ? "2 1" : "2"));
        QVERIFY(!isOpen());
    }

    void brokenOff_data()
    {
        const Rows<const ButtonRow*, bool> row("button", "throws");
        for (const ButtonRow& button : kButtons) {
            if (button.answer == kNotAsked)
                continue;
            row(qPrintable(QString("%1 cancelled").arg(button.code())), &button, false);
            row(qPrintable(QString("%1 fails").arg(button.code())), &button, true);
        }
    }

    /// Cancelling a dialog or question, or a failure of the host, ends the action.
    void brokenOff()
    {
        QFETCH(const ButtonRow*, button);
        QFETCH(bool, throws);
        openManager({0});
        m_host->answer([throws](const VnJsonPtr&) -> int {
            if (throws)
                throw std::runtime_error("broken");
            return 2;
        });
        clickOn(*button);
        // The editor is opened after it.
        QCOMPARE(codes(), QString(button->code() == 0 ? "0" : ""));
    }

    void nobodyToAsk()
    {
        m_dialog = m_module.createDialog(kManager, tree(kTree));
        press("editButton");
        press("restoreButton");
        m_host->answer(6);
        press("saveButton");
        QCOMPARE(log().size(), 1);
    }

    void settings()
    {
        const auto config = vn_user_config(L"LayerState_dialog");
        open(kManager, kTree);
        for (const char* box : {"referenceBox", "turnOffBox"})
            find<QCheckBox>(box).click();
        press("extendButton");
        QVERIFY(!host::hasKey(config, "IsExpand"));
        m_dialog.window()->close();
        QVERIFY(config->GetDataB("isRefLayerCBox") && config->GetDataB("isTCheckBox"));
        QVERIFY(config->GetDataB("IsExpand") && host::hasKey(config, "isWCheckBox"));
        QVERIFY(!config->GetDataB("isWCheckBox"));
        open(kManager, kTree);
        QCOMPARE(find<QTableWidget>("stateTable").rowCount(), 3);
        QVERIFY(find<QPushButton>("extendButton").isChecked());
        QVERIFY(!find<QWidget>("maskPanel").isHidden());
    }

    void plainLetters_data()
    {
        const Rows<QString, Qt::Key, QString> row("dialog", "letter", "widget");
        row("states", kManager, Qt::Key_E, "stateTable");
        row("name", "Dialog/CmdLayerStateNew", Qt::Key_L, "nameBox");
        row("description", "Dialog/CmdLayerStateNew", Qt::Key_D, "descriptionEdit");
    }

    /// A letter in brackets is Alt's letter, with an ampersand or without.
    void plainLetters()
    {
        QFETCH(QString, dialog);
        QFETCH(Qt::Key, letter);
        QFETCH(QString, widget);
        open(qPrintable(dialog), kTree);
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.window()));
        find<QPushButton>("helpButton").setFocus();
        QTest::keyClick(m_dialog.window(), letter, Qt::AltModifier);
        QCOMPARE(m_dialog.window()->focusWidget(), &find<QWidget>(qPrintable(widget)));
        QTest::keyClick(m_dialog.window(), Qt::Key_F1);
        QCOMPARE(log().last(), "help|0");
    }

    void newDialog_data()
    {
        const Rows<QString, int, QString, QString> row("name", "answer", "asked", "taken");
        const QString exists =
            "messageEx|图层状态 - 已经存在|%1 已经存在。是否替换?|6|1|64|替换|取消";
        row("blanks around", " N ", kNotAsked, "", "N");
        row("replaced", "a", 0, exists.arg("a"), "a");
        row("kept", "A", 1, exists.arg("A"), "");
        row("closed", "A", -1, exists.arg("A"), "");
        row("another way out", "A", 5, exists.arg("A"), "A");
        row("a reference's", "R", 0, exists.arg("R") + "&message|无法保存图层状态。|Quenlith|0",
            "");
        row("character", "a<b", kNotAsked,
            "messageEx|图层状态 - 不支持的字符|" + kBadCharacters + "6|1|64|关闭(&C)", "");
    }

    void newDialog()
    {
        QFETCH(QString, name);
        QFETCH(int, answer);
        open("Dialog/CmdLayerStateNew",
            QStringLiteral(R"({"LayerStateList":[{"LayerStateName":"A","desc":"old"},
                {"LayerStateName":"R","space":"外部参照"}]})"));
        auto& box = find<QComboBox>("nameBox");
        const auto& ok = find<QPushButton>("okButton");
        QVERIFY(box.currentText().isEmpty() && !ok.isEnabled());
        box.setEditText("  ");
        QVERIFY(!ok.isEnabled());
        box.setCurrentIndex(0); // Choosing an entry of the list also fills in its description.
        QCOMPARE(find<QTextEdit>("descriptionEdit").toPlainText(), "old");
        QVERIFY(ok.isEnabled());
        box.setEditText(name);
        if (answer != kNotAsked)
            m_host->answer(answer);
        press("okButton");
        QTEST(log().join('&'), "asked");
        QTEST(text(m_tree, "LayerStateNewName"), "taken");
        const bool isTaken = host::hasKey(m_tree, "LayerStateNewName");
        QCOMPARE(isOpen(), !isTaken);
        QCOMPARE(host::hasKey(m_tree, "desc"), isTaken);
    }

    void editFilled()
    {
        const auto& table = openEditor();
        QCOMPARE(title(), "编辑图层状态: A");
        QCOMPARE(headersOf(table),
            "名称 开 在所有视口中冻结 锁定 颜色 线型 线宽 透明度 打印样式 打印 新视口冻结");
        QCOMPARE(table.rowCount(), 3);
        QCOMPARE(rowTexts(table).at(1).section('|', -6, -4), "Dashed|0.50 mm|20");
        QVERIFY(rowTexts(table).at(0).startsWith("0|"));
    }

    void editClicks_data()
    {
        const Rows<int, int, int, QString, QString> row("row", "column", "answer", "key", "value");
        row("off", 2, 1, kNotAsked, "Off", "true");
        row("frozen", 2, 2, kNotAsked, "Frozen", "true");
        row("locked", 0, 3, kNotAsked, "Lock", "true");
        row("plotted", 0, 9, kNotAsked, "Print", "true");
        row("new viewports", 2, 10, kNotAsked, "VPortFrozen", "true");
        row("on again", 1, 1, kNotAsked, "Off", "false");
        row("current kept on", 0, 1, 6, "Off", "null");
        row("current turned off", 0, 1, 7, "Off", "true");
        row("current not frozen", 0, 2, kNotAsked, "Frozen", "null");
        row("made current", 2, 0, kNotAsked, "CurLayer", "1");
        row("still current", 0, 0, kNotAsked, "CurLayer", "1");
        row("colour", 2, 4, 1, "Color", R"({"clrMethod":194,"selectClr":5})");
        row("linetype", 1, 5, kNotAsked, "linetype", R"({"name":"Dashed"})");
        row("lineweight", 1, 6, kNotAsked, "LineWidth", "50");
        row("plot style", 2, 8, kNotAsked, "PlotStyle", "\"Color_3\"");
    }

    void editClicks()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(int, answer);
        QFETCH(QString, key);
        auto& table = openEditor();
        if (key == "Color")
            m_host->answer(1, QStringLiteral(R"({"clrMethod":194,"selectClr":5})"));
        else if (answer != kNotAsked)
            m_host->answer(answer);
        emit table.cellClicked(row, column);
        const VnJsonPtr list = element(2)->GetDataJ("LayerStateList");
        const VnJsonPtr record = list(row == 0 ? 0 : row + 1); // One record is not shown.
        const QJsonArray member{toJsonObject(record).value(key)};
        const QByteArray json = QJsonDocument(member).toJson(QJsonDocument::Compact);
        QTEST(QString::fromUtf8(json.mid(1, json.size() - 2)), "value");
        if (key == "CurLayer")
            QCOMPARE(list(0)->GetDataI("CurLayer"), row == 0 ? 1 : 0);
    }

    /// Layers that the table lacks are offered, including removed ones, and the drawing's own
    /// records stay as they are. Exactly one record claims to be the current layer, even when the
    /// record that did was removed.
    void editAdds()
    {
        auto& table = openEditor();
        QString offered;
        const auto choose = [&](const VnJsonPtr& node) {
            offered = texts(node->GetDataJ("NeedAddlayerList"), "LayerName");
            return 1;
        };
        selectRows(table, {0});
        press("deleteLayerButton");
        QCOMPARE(table.rowCount(), 2);
        m_host->answer(choose);
        press("newLayerButton");
        QCOMPARE(offered, "0 New gone");
        QCOMPARE(table.rowCount(), 5);
        const VnJsonPtr list = element(2)->GetDataJ("LayerStateList");
        QCOMPARE(list.ArrayCount(), 7);
        emit table.cellClicked(1, 0);
        QStringList current;
        for (int i = 0; i < list.ArrayCount(); ++i) {
            if (list(i)->GetDataI("CurLayer") != 0)
                current += text(list(i), "LayerName");
        }
        QCOMPARE(current, QStringList("Door"));
        QCOMPARE(element(2)->GetDataJ("LayerList")(3)->GetDataI("CurLayer"), 1);
        m_host->takeLog();
        press("newLayerButton");
        QCOMPARE(m_host->takeLog(),
            QStringList("messageEx|图层状态 - 添加图层|所有图层都已包含在此图层状态中。"
                        "没有可添加的图层。|6|1|0|关闭(&C)"));
    }

    void editSends_data()
    {
        const Rows<int, QString> row("deletions", "codes");
        row("nothing removed", 0, "1");
        row("one removed", 1, "2 1");
        row("nothing selected the second time", 2, "1"); // Makes sure that nothing is pending.
    }

    void editSends()
    {
        QFETCH(int, deletions);
        selectRows(openEditor(), {1});
        for (int i = 0; i < deletions; ++i)
            press("deleteLayerButton");
        press("okButton");
        QTEST(codes(), "codes");
        QCOMPARE(log().filter(QRegularExpression("^request\\|\\d\\|2\\|")), log());
    }

    void addDialog_data()
    {
        const Rows<QList<int>, QString> row("rows", "kept");
        row("none", {}, "");
        row("letter case counts", {1}, "wall");
        row("two", {0, 2}, "Wall Door");
    }

    void addDialog()
    {
        QFETCH(QList<int>, rows);
        open("Dialog/CmdLayerStateAddNewLayer",
            QStringLiteral(R"({"NeedAddlayerList":[{"LayerName":"Wall","Description":"d"},
                {"LayerName":"wall","Selected":true},{"LayerName":"Door"}]})"));
        auto& table = find<QTableWidget>("candidateTable");
        QVERIFY(table.itemDelegate()); // Without a delegate the rows exist but are not painted.
        QCOMPARE(rowTexts(table).first(), "Wall|d");
        QVERIFY(table.selectedItems().isEmpty());
        const VnJsonPtr list = m_tree->GetDataJ("NeedAddlayerList");
        selectRows(table, rows);
        press("okButton");
        // The list is changed in place because the caller holds it.
        QTEST(texts(list, "LayerName"), "kept");
        QVERIFY(!isOpen());
    }

private:
    /// Opens the manager and selects these rows.
    QTableWidget& openManager(const QList<int>& rows, const QStringList& keys = {"none"})
    {
        open(kManager, kTree, keys);
        auto& table = find<QTableWidget>("stateTable");
        selectRows(table, rows);
        return table;
    }
    QTableWidget& openEditor()
    {
        open("Dialog/CmdLayerStateEdit", kEditTree);
        return find<QTableWidget>("stateLayerTable");
    }
    using DialogFixture::press;
    void press(const ButtonRow& row)
    {
        if (row.answer != kNotAsked)
            m_host->answer(row.answer, QString(row.members));
        clickOn(row);
    }
    void clickOn(const ButtonRow& row)
    {
        if (row.name)
            return press(row.name);
        auto& table = find<QTableWidget>("stateTable");
        emit table.itemClicked(table.item(0, kDescription));
    }
    VnJsonPtr element(int index) const { return m_tree->GetDataJ(kElements)(index); }
    /// The codes of the requests in the log.
    QString codes() const
    {
        QStringList all;
        for (const QString& line : log().filter(QRegularExpression("^request")))
            all += line.section('|', 1, 1);
        return all.join(' ');
    }
};

QTEST_MAIN(TestLayerStates)
#include "tst_layerstates.moc"
