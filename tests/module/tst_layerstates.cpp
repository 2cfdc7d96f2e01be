#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "sysvars.h"
#include "trees.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QtTest>

using namespace vnsi;

namespace {

constexpr int kDescription = 3;

/// Four states: A and B of the drawing, X of a reference, Long with another letter case in space.
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

template <class T>
T& child(const VnUiModeDialogBasePtr& dialog, const char* name)
{
    return *ModuleFixture::child<T>(dialog, name);
}

void press(const VnUiModeDialogBasePtr& dialog, const char* name)
{
    child<QPushButton>(dialog, name).click();
}

QTableWidget& states(const VnUiModeDialogBasePtr& dialog)
{
    return child<QTableWidget>(dialog, "stateTable");
}

void select(QTableWidget& table, const QList<int>& rows)
{
    table.clearSelection();
    const QItemSelectionModel::SelectionFlags add =
        QItemSelectionModel::Select | QItemSelectionModel::Rows;
    for (const int row : rows) {
        const QModelIndex index = table.model()->index(row, 0);
        table.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        table.selectionModel()->select(index, add);
    }
}

QString rowText(const QTableWidget& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts += table.item(row, column)->text();
    return texts.join(QLatin1Char(','));
}

QString text(const VnJsonPtr& node, const char* key)
{
    return vnutOdStringToQString(node->GetDataSW(key));
}

/// What the objects of a list have under `key`, with blanks between.
QString texts(const VnJsonPtr& list, const char* key)
{
    QStringList texts;
    for (int i = 0; i < list.ArrayCount(); ++i)
        texts += text(list(i), key);
    return texts.join(QLatin1Char(' '));
}

VnJsonPtr elementOf(const VnJsonPtr& tree, int index)
{
    return tree->GetDataJ("LayerStateMgr")(index);
}

} // namespace

/// The four dialogs of layer states, by what they show, ask and send.
class TestLayerStates : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void filled();
    void maskBoxes();
    void enabled_data();
    void enabled();
    void requests_data();
    void requests();
    void renamed_data();
    void renamed();
    void deletedSeveral_data();
    void deletedSeveral();
    void imported_data();
    void imported();
    void newState();
    void closesWhenTold();
    void nobodyToAsk();
    void settings();
    void newDialog_data();
    void newDialog();
    void editFilled();
    void editClicks_data();
    void editClicks();
    void editAdds();
    void editSends();
    void addDialog_data();
    void addDialog();

private:
    VnUiModeDialogBasePtr open(const char* name, const QString& json,
        RecordingInvoker::Answer answer = {}, const QStringList& keys = {QStringLiteral("none")})
    {
        m_tree = tree(json);
        m_invoker = RecordingInvoker::create(*m_host, keys, std::move(answer));
        return m_module.createDialog(
            QString::fromUtf8(name), m_tree, OdRxObjectPtr(m_invoker.get()));
    }

    ModuleFixture m_module;
    std::unique_ptr<RecordingHost> m_host;
    RecordingInvoker::Ptr m_invoker;
    VnJsonPtr m_tree;
};

void TestLayerStates::init()
{
    m_host = std::make_unique<RecordingHost>();
    host::setVar(L"TILEMODE", 1);
    const VnJsonPtr config = vn_user_config(L"LayerState_dialog");
    for (const char* key : {"isRefLayerCBox", "isWCheckBox", "isTCheckBox", "IsExpand"})
        config->RemoveKey(key);
}

/// Whatever the records say, the last row is the one selected.
void TestLayerStates::filled()
{
    const auto dialog = open("Dialog/CmdLayerState", kTree);
    QTableWidget& table = states(dialog);
    QCOMPARE(table.rowCount(), 4);
    QCOMPARE(rowText(table, 0), QStringLiteral("A,模型,是,first"));
    QCOMPARE(rowText(table, 2), QStringLiteral("X|R,外部参照,否,"));
    QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
    QVERIFY(table.item(3, 0)->isSelected());
    QCOMPARE(child<QLabel>(dialog, "statusLabel").text(), QStringLiteral("当前图层状态: B"));
    child<QCheckBox>(dialog, "referenceBox").click();
    QCOMPARE(table.rowCount(), 3);
    QVERIFY(table.item(2, 0)->isSelected());

    const auto empty = m_module.createDialog(QStringLiteral("Dialog/CmdLayerState"), {});
    QCOMPARE(child<QLabel>(empty, "statusLabel").text(), QStringLiteral("当前图层状态: *未保存*"));
    QVERIFY(!child<QPushButton>(empty, "restoreButton").isEnabled());
}

/// Eleven boxes in the order of the screen, each with its bit; they show the selected state's mask.
void TestLayerStates::maskBoxes()
{
    const auto dialog = open("Dialog/CmdLayerState", kTree);
    QStringList shown;
    const auto* panel = &child<QWidget>(dialog, "maskPanel");
    for (const QCheckBox* box : panel->findChild<QGroupBox*>()->findChildren<QCheckBox*>())
        shown += box->text() + box->objectName().mid(7);
    QCOMPARE(shown.join(QLatin1Char(' ')),
        QStringLiteral("开/关(&O)1 冻结/解冻(&F)2 在当前视口中的可见性(&U)512 锁定/解锁(&K)4 "
                       "打印/不打印(&P)8 颜色(&L)32 线型(&P)64 线宽(&G)128 透明度(&T)1024 "
                       "打印样式(&V)256 新视口冻结/解冻(&Z)16"));
    const auto checkedBits = [&] {
        int bits = 0;
        for (const QCheckBox* box : panel->findChildren<QCheckBox*>())
            bits |= box->isChecked() ? box->objectName().mid(7).toInt() : 0;
        return bits;
    };
    QCOMPARE(checkedBits(), 2); // 2050 without the bit nobody knows.
    select(states(dialog), {0});
    QCOMPARE(checkedBits(), 1057);
    press(dialog, "selectAllButton");
    QCOMPARE(checkedBits(), 2047);
    press(dialog, "clearAllButton");
    QCOMPARE(checkedBits(), 0);
    QVERIFY(panel->isHidden());
    press(dialog, "extendButton");
    QVERIFY(!panel->isHidden());
}

void TestLayerStates::enabled_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("tileMode");
    QTest::addColumn<QString>("enabled");
    const QString one = QStringLiteral("save edit rename delete export restore turnOff ");
    QTest::newRow("one in model space") << QList<int>{0} << 1 << one + "1 2 32";
    QTest::newRow("one in a layout") << QList<int>{1} << 0 << one + "override 512 32";
    QTest::newRow("none") << QList<int>{} << 1 << QString();
    QTest::newRow("none in a layout") << QList<int>{} << 0 << QString();
    QTest::newRow("several") << QList<int>{0, 1} << 1 << "delete";
    QTest::newRow("several with a reference's") << QList<int>{0, 2} << 1 << QString();
    QTest::newRow("a reference's") << QList<int>{2} << 1 << "restore turnOff 1 2 32";
    QTest::newRow("a reference's in a layout")
        << QList<int>{2} << 0 << "restore turnOff override 512 32";
}

void TestLayerStates::enabled()
{
    QFETCH(QList<int>, rows);
    QFETCH(int, tileMode);
    const auto dialog = open("Dialog/CmdLayerState", kTree);
    host::setVar(L"TILEMODE", static_cast<OdInt16>(tileMode));
    select(states(dialog), rows);
    QStringList enabled;
    const auto note = [&](const QString& name, const QString& shown) {
        if (child<QWidget>(dialog, name.toUtf8().constData()).isEnabled())
            enabled += shown;
    };
    for (const char* button : {"save", "edit", "rename", "delete", "export", "restore"})
        note(QLatin1String(button) + QStringLiteral("Button"), QLatin1String(button));
    for (const char* box : {"turnOff", "override"})
        note(QLatin1String(box) + QStringLiteral("Box"), QLatin1String(box));
    for (const char* bit : {"1", "2", "512", "32"})
        note(QStringLiteral("maskBox") + QLatin1String(bit), QLatin1String(bit));
    QTEST(enabled.join(QLatin1Char(' ')), "enabled");
}

void TestLayerStates::requests_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("sent");
    const QString save = QStringLiteral("messageEx|图层 - 覆盖图层状态|是否要覆盖A?|4|1|64");
    QTest::newRow("save") << "saveButton" << 6 << save
                          << R"(request|4|1|{"LayerStateMask":1057,"LayerStateSaveName":"A"})";
    QTest::newRow("not saved") << "saveButton" << 7 << save << QString();
    const QString one = QStringLiteral("messageEx|图层 - 删除图层状态|是否确实要删除 A?|4|1|64");
    QTest::newRow("delete") << "deleteButton" << 6 << one
                            << R"(request|2|1|{"DeleteNameOne":true,"LayerStateDeleteName":"A"})";
    QTest::newRow("not deleted") << "deleteButton" << 7 << one << QString();
    QTest::newRow("restore")
        << "restoreButton" << 0 << QString()
        << R"(request|5|1|{"LStateRestoreName":"A","LStateTCheckBox":0,"LStateWCheckBox":false,"LayerStateMask":1057})";
}

void TestLayerStates::requests()
{
    QFETCH(QString, button);
    QFETCH(int, answer);
    QFETCH(QString, asked);
    QFETCH(QString, sent);
    const auto dialog = open("Dialog/CmdLayerState", kTree, {},
        {"DeleteNameOne", "LayerStateDeleteName", "LayerStateSaveName", "LayerStateMask",
            "LStateRestoreName", "LStateTCheckBox", "LStateWCheckBox"});
    select(states(dialog), {0});
    if (answer > 0)
        m_host->answer(answer);
    press(dialog, button.toUtf8().constData());
    QStringList expected{asked, sent};
    expected.removeAll(QString());
    QCOMPARE(m_host->log(), expected);
    if (button == QLatin1String("saveButton") && answer == 6)
        QCOMPARE(states(dialog).currentRow(), 0);
}

void TestLayerStates::renamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("outcome");
    const QString used = QStringLiteral("|图层状态 - 名称已经存在|64");
    const QString bad = QStringLiteral("message|名称包含不支持的字符。\n 不支持以下字符：\n  "
                                       "\\<>/?\":;*|,=`|图层状态 - 不支持的字符|64");
    QTest::newRow("other") << "New"
                           << R"(request|3|1|{"NewName":"New","OldName":"A"})";
    QTest::newRow("letter case") << "a" << QString();
    QTest::newRow("empty") << ""
                           << "message|名称 必须至少有一个字符长。|图层状态 - 文字长度|64";
    QTest::newRow("in use") << "b"
                            << "message|名称 b 已在使用。\n您需要输入其他名称。" + used;
    for (const QChar c : QStringLiteral("\\<>/\":;?*|,=`"))
        QTest::newRow(qPrintable(QString(c))) << QString("n" + QString(c)) << bad;
}

void TestLayerStates::renamed()
{
    QFETCH(QString, name);
    QFETCH(QString, outcome);
    m_host->setLogsTrees(true);
    const auto dialog = open("Dialog/CmdLayerState", kTree, {}, {"OldName", "NewName"});
    select(states(dialog), {0});
    m_host->answer([name](const VnJsonPtr& asked) {
        asked->set("Success", true).set("NewName", OdString(name.toStdWString()));
        return 1;
    });
    press(dialog, "renameButton");
    QStringList log = m_host->takeLog();
    QCOMPARE(log.takeFirst(),
        QStringLiteral(R"(dialog|Dialog/CmdsUI|Dialog/CmdsUI/ReNameDlg|{"DefaultName":"A"})"));
    QCOMPARE(log.join(QLatin1Char('&')), outcome);
}

void TestLayerStates::deletedSeveral_data()
{
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("sent");
    const auto one = [](const char* name) {
        return QStringLiteral(R"(request|2|1|one %1)").arg(QLatin1String(name));
    };
    QTest::newRow("each") << QList<int>{0, 0, 0} << QStringList{one("A"), one("B"), one("D")};
    QTest::newRow("no and yes") << QList<int>{2, 0, 2} << QStringList{one("B")};
    QTest::newRow("all from the second")
        << QList<int>{2, 1} << QStringList{QStringLiteral("request|2|1|all B D")};
    QTest::newRow("cancelled") << QList<int>{0, 3} << QStringList{one("A")};
    QTest::newRow("closed") << QList<int>{-1} << QStringList();
}

void TestLayerStates::deletedSeveral()
{
    QFETCH(QList<int>, answers);
    const auto dialog = open("Dialog/CmdLayerState", kTree, {},
        {"DeleteNameOne", "LayerStateDeleteName", "LayerStateDeleteNames"});
    QStringList sent;
    m_invoker->setAnswer([&](const VnJsonPtr& node) {
        QString line = QStringLiteral("request|%1|%2|")
                           .arg(node->GetDataI("marker"))
                           .arg(node->GetDataI("parameter"));
        line += node->GetDataB("DeleteNameOne")
                    ? "one " + text(node, "LayerStateDeleteName")
                    : "all " + texts(node->GetDataJ("LayerStateDeleteNames"), "LayerSDeleteName");
        sent += line;
    });
    select(states(dialog), {0, 1, 3});
    for (const int answer : answers)
        m_host->answer(answer);
    press(dialog, "deleteButton");
    QCOMPARE(m_host->log().first(),
        QStringLiteral("messageEx|图层 - 删除图层状态|是否确实要删除图层状态 A?|6|1|64|是|"
                       "全部删除|否|取消"));
    QTEST(sent, "sent");
}

void TestLayerStates::imported_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("codes");
    const QString chosen = QStringLiteral(R"({"filePaths":["/a.las"],"filePath":"/a.las"})");
    QTest::newRow("cancelled") << QString() << QString() << QStringList();
    QTest::newRow("nothing came") << chosen << "{}" << QStringList{"6"};
    QTest::newRow("taken in") << chosen << R"({"LayerStateListRefOK":true})" << QStringList{"6"};
    QTest::newRow("restored") << chosen
                              << R"({"LayerStateListRefOK":true,"LayerStateYesNoRestore":true})"
                              << QStringList{"6", "5"};
}

void TestLayerStates::imported()
{
    QFETCH(QString, file);
    QFETCH(QString, answer);
    const auto dialog = open("Dialog/CmdLayerState", kTree);
    QStringList codes;
    m_invoker->setAnswer([&](const VnJsonPtr& node) {
        codes += QString::number(node->GetDataI("marker"));
        if (node->GetDataI("marker") != 6)
            return;
        QCOMPARE(node->GetDataJ("LStatefilePaths").ArrayCount(), 1);
        QVERIFY(node->GetDataJ("LayerStateList1") == node->GetDataJ("LayerStateList"));
        QCOMPARE(node->GetDataB("LStateRefLayer", true), false);
        QVERIFY(!node->GetDataB("LayerStateYesNoRestore"));
        merge(node, answer);
    });
    // Left over from an earlier import; it must not count.
    elementOf(m_tree, 1)->set("LayerStateYesNoRestore", true);
    m_host->answer(file.isEmpty() ? 2 : 1, file.isEmpty() ? QStringLiteral("{}") : file);
    press(dialog, "importButton");
    QTEST(codes, "codes");
    QVERIFY(m_host->log().first().startsWith(QLatin1String("dialog|Dialog/Common|FileDialogBox|")));
    QVERIFY(m_host->log().first().contains(
        QStringLiteral("图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)")));
}

/// The new dialog's keys stand in the very tree that is then sent.
void TestLayerStates::newState()
{
    const auto dialog = open("Dialog/CmdLayerState", kTree, {}, {"LayerStateNewName", "desc"});
    m_host->setLogsTrees(false);
    m_host->answer(1, QStringLiteral(R"({"LayerStateNewName":"N","desc":"d"})"));
    press(dialog, "newButton");
    m_host->answer(2, QStringLiteral("{}"));
    press(dialog, "newButton");
    QCOMPARE(m_host->takeLog(), QStringList({"dialog|Dialog/CmdLayer|Dialog/CmdLayerStateNew|",
                                    R"(request|1|1|{"LayerStateNewName":"N","desc":"d"})",
                                    "dialog|Dialog/CmdLayer|Dialog/CmdLayerStateNew|"}));

    select(states(dialog), {0});
    m_invoker->setAnswer([this](const VnJsonPtr& node) {
        QVERIFY(node == elementOf(m_tree, 2));
        QCOMPARE(text(node, "selectItemName"), QStringLiteral("A"));
    });
    m_host->answer(0);
    press(dialog, "editButton");
    QCOMPARE(m_host->takeLog(),
        QStringList({"request|0|2|{}", "dialog|Dialog/CmdLayer|Dialog/CmdLayerStateEdit|"}));
    m_invoker->setAnswer({});
    m_host->answer(1, QStringLiteral(R"({"filePath":"/x.las"})"));
    press(dialog, "exportButton");
    m_host->answer(1, QStringLiteral(R"({"filePath":""})"));
    press(dialog, "exportButton");
    QCOMPARE(m_host->log().size(), 3);
    QVERIFY(m_host->log().at(1).startsWith(QLatin1String("request|7|1|")));

    m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":""})"));
    emit states(dialog).itemClicked(states(dialog).item(0, kDescription));
    emit states(dialog).itemClicked(states(dialog).item(1, kDescription));
    QCOMPARE(m_host->log().size(), 5);
    QVERIFY(m_host->log().last().startsWith(QLatin1String("request|8|1|")));
}

void TestLayerStates::closesWhenTold()
{
    const auto dialog = open("Dialog/CmdLayerState", kTree,
        [](const VnJsonPtr& node) { node->set("LayerStateOKClose", true); });
    QTimer::singleShot(0, dialog->widget(), [&] { press(dialog, "restoreButton"); });
    QCOMPARE(dialog->doModal(), 1);
    QTimer::singleShot(0, dialog->widget(), [&] { press(dialog, "closeButton"); });
    QCOMPARE(dialog->doModal(), 2);
}

void TestLayerStates::nobodyToAsk()
{
    const auto dialog = m_module.createDialog(QStringLiteral("Dialog/CmdLayerState"), tree(kTree));
    press(dialog, "editButton");
    press(dialog, "restoreButton");
    m_host->answer(6);
    press(dialog, "saveButton");
    QCOMPARE(m_host->log().size(), 1);
}

void TestLayerStates::settings()
{
    const auto config = vn_user_config(L"LayerState_dialog");
    {
        const auto dialog = open("Dialog/CmdLayerState", kTree);
        for (const char* box : {"referenceBox", "turnOffBox"})
            child<QCheckBox>(dialog, box).click();
        press(dialog, "extendButton");
        QVERIFY(!config->HasKey("IsExpand"));
        dialog->widget()->close();
    }
    QVERIFY(config->GetDataB("isRefLayerCBox") && config->GetDataB("isTCheckBox"));
    QVERIFY(config->GetDataB("IsExpand") && config->HasKey("isWCheckBox"));
    QVERIFY(!config->GetDataB("isWCheckBox"));
    const auto again = open("Dialog/CmdLayerState", kTree);
    QCOMPARE(states(again).rowCount(), 3);
    QVERIFY(child<QPushButton>(again, "extendButton").isChecked());
    QVERIFY(!child<QWidget>(again, "maskPanel").isHidden());
}

void TestLayerStates::newDialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("answer"); // 9: nothing is asked.
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("taken");
    const auto exists = [](const char* name) {
        return QStringLiteral(
            "messageEx|图层状态 - 已经存在|%1 已经存在。是否替换?|6|1|64|替换|取消")
            .arg(QLatin1String(name));
    };
    QTest::newRow("blanks around") << " N " << 9 << QString() << "N";
    QTest::newRow("replaced") << "a" << 0 << exists("a") << "a";
    QTest::newRow("kept") << "A" << 1 << exists("A") << QString();
    QTest::newRow("closed") << "A" << -1 << exists("A") << QString();
    QTest::newRow("another way out") << "A" << 5 << exists("A") << "A";
    QTest::newRow("a reference's")
        << "R" << 0 << exists("R") + "&message|无法保存图层状态。|Quenlith|0" << QString();
    QTest::newRow("character") << "a<b" << 9
                               << "messageEx|图层状态 - 不支持的字符|名称包含不支持的字符。\n "
                                  "不支持以下字符：\n  \\<>/?\":;*|,=`|6|1|64|关闭(&C)"
                               << QString();
}

void TestLayerStates::newDialog()
{
    QFETCH(QString, name);
    QFETCH(int, answer);
    const auto dialog = open("Dialog/CmdLayerStateNew",
        QStringLiteral(R"({"LayerStateList":[{"LayerStateName":"A","desc":"old"},
            {"LayerStateName":"R","space":"外部参照"}]})"));
    auto& box = child<QComboBox>(dialog, "nameBox");
    auto& ok = child<QPushButton>(dialog, "okButton");
    QVERIFY(box.currentText().isEmpty() && !ok.isEnabled());
    box.setEditText(QStringLiteral("  "));
    QVERIFY(!ok.isEnabled());
    box.setCurrentIndex(0); // Picked from the list; its description comes along.
    QCOMPARE(child<QTextEdit>(dialog, "descriptionEdit").toPlainText(), QStringLiteral("old"));
    QVERIFY(ok.isEnabled());
    box.setEditText(name);
    if (answer != 9)
        m_host->answer(answer);
    ok.click();
    QTEST(m_host->log().join(QLatin1Char('&')), "asked");
    QTEST(text(m_tree, "LayerStateNewName"), "taken");
    const bool isTaken = m_tree->HasKey("LayerStateNewName");
    QCOMPARE(dialog->resultData()->GetDataI("result"), isTaken ? 1 : 0);
    QCOMPARE(m_tree->HasKey("desc"), isTaken);
}

void TestLayerStates::editFilled()
{
    const auto dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    QCOMPARE(dialog->widget()->windowTitle(), QStringLiteral("编辑图层状态: A"));
    const auto& table = child<QTableWidget>(dialog, "stateLayerTable");
    QStringList headers;
    for (int column = 0; column < table.columnCount(); ++column)
        headers += table.horizontalHeaderItem(column)->text();
    QCOMPARE(headers.join(QLatin1Char(' ')),
        QStringLiteral(
            "名称 开 在所有视口中冻结 锁定 颜色 线型 线宽 透明度 打印样式 打印 新视口冻结"));
    QCOMPARE(table.rowCount(), 3);
    QCOMPARE(rowText(table, 1).section(',', -6, -4), QStringLiteral("Dashed,0.50 mm,20"));
    QVERIFY(rowText(table, 0).startsWith(QLatin1String("0,")));
}

void TestLayerStates::editClicks_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("answer"); // 9: nothing is asked.
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const auto flag = [](const char* name, int row, int column, const char* key) {
        QTest::newRow(name) << row << column << 9 << key << "true";
    };
    flag("off", 2, 1, "Off");
    flag("frozen", 2, 2, "Frozen");
    flag("locked", 0, 3, "Lock");
    flag("plotted", 0, 9, "Print");
    flag("new viewports", 2, 10, "VPortFrozen");
    QTest::newRow("on again") << 1 << 1 << 9 << "Off"
                              << "false";
    QTest::newRow("current kept on") << 0 << 1 << 6 << "Off"
                                     << "";
    QTest::newRow("current turned off") << 0 << 1 << 7 << "Off"
                                        << "true";
    QTest::newRow("current not frozen") << 0 << 2 << 9 << "Frozen"
                                        << "";
    QTest::newRow("made current") << 2 << 0 << 9 << "CurLayer"
                                  << "1";
    QTest::newRow("still current") << 0 << 0 << 9 << "CurLayer"
                                   << "1";
    QTest::newRow("colour") << 2 << 4 << 1 << "Color"
                            << R"({"clrMethod":194,"selectClr":5})";
    QTest::newRow("linetype") << 1 << 5 << 9 << "linetype"
                              << R"({"name":"Dashed"})";
    QTest::newRow("lineweight") << 1 << 6 << 9 << "LineWidth"
                                << "50";
    QTest::newRow("plot style") << 2 << 8 << 9 << "PlotStyle"
                                << "\"Color_3\"";
}

void TestLayerStates::editClicks()
{
    QFETCH(int, row);
    QFETCH(int, answer);
    QFETCH(QString, key);
    const auto dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    auto& table = child<QTableWidget>(dialog, "stateLayerTable");
    if (key == QLatin1String("Color"))
        m_host->answer(1, QStringLiteral(R"({"clrMethod":194,"selectClr":5})"));
    else if (answer != 9)
        m_host->answer(answer);
    QFETCH(int, column);
    emit table.cellClicked(row, column);
    const VnJsonPtr list = elementOf(m_tree, 2)->GetDataJ("LayerStateList");
    const VnJsonPtr record = list(row == 0 ? 0 : row + 1); // One is not shown.
    const QJsonArray member{toJsonObject(record).value(key)};
    const QString text = QString::fromUtf8(QJsonDocument(member).toJson(QJsonDocument::Compact));
    QFETCH(QString, value);
    QCOMPARE(text, QStringLiteral("[%1]").arg(value.isEmpty() ? QStringLiteral("null") : value));
    if (key == QLatin1String("CurLayer"))
        QCOMPARE(list(0)->GetDataI("CurLayer"), row == 0 ? 1 : 0);
}

/// What the table lacks is offered, also what was removed from it; the drawing's own records stay
/// as they are.
void TestLayerStates::editAdds()
{
    const auto dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    auto& table = child<QTableWidget>(dialog, "stateLayerTable");
    QString offered;
    const auto choose = [&](const VnJsonPtr& node) {
        offered = texts(node->GetDataJ("NeedAddlayerList"), "LayerName");
        return 1;
    };
    select(table, {2});
    press(dialog, "deleteLayerButton");
    QCOMPARE(table.rowCount(), 2);
    m_host->answer(choose);
    press(dialog, "newLayerButton");
    QCOMPARE(offered, QStringLiteral("Door New gone"));
    QCOMPARE(table.rowCount(), 5);
    const VnJsonPtr list = elementOf(m_tree, 2)->GetDataJ("LayerStateList");
    QCOMPARE(list.ArrayCount(), 7);
    QCOMPARE(list(5)->GetDataI("CurLayer", -1), 0);
    QCOMPARE(elementOf(m_tree, 2)->GetDataJ("LayerList")(3)->GetDataI("CurLayer"), 1);
    m_host->takeLog();
    press(dialog, "newLayerButton");
    QCOMPARE(m_host->takeLog(),
        QStringList(QStringLiteral("messageEx|图层状态 - 添加图层|所有图层都已包含在此图层状态中。"
                                   "没有可添加的图层。|6|1|0|关闭(&C)")));
}

void TestLayerStates::editSends()
{
    auto dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    press(dialog, "okButton");
    QCOMPARE(m_host->takeLog(), QStringList("request|1|2|{}"));
    dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    select(child<QTableWidget>(dialog, "stateLayerTable"), {1});
    press(dialog, "deleteLayerButton");
    press(dialog, "okButton");
    QCOMPARE(m_host->takeLog(), QStringList({"request|2|2|{}", "request|1|2|{}"}));
    dialog = open("Dialog/CmdLayerStateEdit", kEditTree);
    select(child<QTableWidget>(dialog, "stateLayerTable"), {1});
    press(dialog, "deleteLayerButton");
    press(dialog, "deleteLayerButton"); // Nothing is selected any more: nothing is pending.
    press(dialog, "okButton");
    QCOMPARE(m_host->takeLog(), QStringList("request|1|2|{}"));
}

void TestLayerStates::addDialog_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("kept");
    QTest::newRow("none") << QList<int>{} << "";
    QTest::newRow("letter case counts") << QList<int>{1} << "wall";
    QTest::newRow("two") << QList<int>{0, 2} << "Wall Door";
}

void TestLayerStates::addDialog()
{
    QFETCH(QList<int>, rows);
    const auto dialog = open("Dialog/CmdLayerStateAddNewLayer",
        QStringLiteral(R"({"NeedAddlayerList":[{"LayerName":"Wall","Description":"d"},
            {"LayerName":"wall","Selected":true},{"LayerName":"Door"}]})"));
    auto& table = child<QTableWidget>(dialog, "candidateTable");
    QVERIFY(table.itemDelegate()); // Else the rows are there, but nothing of them is painted.
    QCOMPARE(rowText(table, 0), QStringLiteral("Wall,d"));
    QVERIFY(table.selectedItems().isEmpty());
    select(table, rows);
    press(dialog, "okButton");
    QTEST(texts(m_tree->GetDataJ("NeedAddlayerList"), "LayerName"), "kept");
    QCOMPARE(dialog->resultData()->GetDataI("result"), 1);
}

QTEST_MAIN(TestLayerStates)
#include "tst_layerstates.moc"
