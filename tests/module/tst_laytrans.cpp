#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "translatorkeys.h"
#include "trees.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QJsonArray>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

using namespace vnsi;

namespace {

const QString kTree = QStringLiteral(R"({"LaytransDwgName":"plan","LaytransTheme":[
    {"LayerNameT":"Wall","bUsedT":true},{"LayerNameT":"door"},{"LayerNameT":"窗"},
    {"LayerNameT":"Straße"}]})");

const QString kTargets = QStringLiteral(R"([
    {"transToName":"WALL","transToColor":{"clrMethod":195,"selectClr":7},"transTosLineType":"Dashed",
     "transTosLinew":"0.25 mm","transToTransparency":30,"transToprintt":"普通","transTobUsed":true},
    {"transToName":"Doors","transToColor":{"clrMethod":194,"selectClr":255}},
    {"transToName":"STRASSE","transToColor":{"clrMethod":0,"selectClr":8487297}}])");

constexpr char kFiles[] = R"({"filePaths":["/d/a.dws","/d/b.dwg"],"filePath":"/d/a.dws"})";
constexpr char kEdited[] = R"({"ltransResultNewEditLayer":{"ltransResultNewLayName":"W2",
    "ltransResultNewclrMethod":194,"ltransResultNewselectClr":66051,
    "ltransResultNewLineType":"CENTER","ltransResultNewLineTypeId":33,
    "ltransResultNewLineWidthName":"0.50 mm","ltransResultNewLineWidth":50,
    "ltransResultNewTparency":90,"ltransResultNewPlotstyle":"ByBlock"}})";

} // namespace

class TestLaytrans : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shown();
    void mapped();
    void mapsSame();
    void selectsByName_data();
    void selectsByName();
    void loadsMappings();
    void givesBack();
    void edited();
    void savedUntilChanged();
    void requests_data();
    void requests();
    void clicks();
    void settingsKept();
    void translated_data();
    void translated();
    void purged();
    void nobodyToAsk();

private:
    /// `keys` are those of requests that the log shows.
    void open(const QString& json = kTree, const QStringList& keys = {QStringLiteral("none")});
    /// Loads the targets; with `mappings` as those that the files hold.
    void load(const QString& mappings = {});
    template <class T = QPushButton>
    T& find(const char* name) const
    {
        return *ModuleFixture::child<T>(m_dialog, name);
    }
    void press(const char* button) const { find(button).click(); }
    void choose(const char* menuOwner, const QString& text) const;
    void select(const QStringList& names) const;
    QStringList from() const { return texts(find<QListWidget>("fromList")); }
    QStringList to() const { return texts(find<QListWidget>("toList")); }
    QStringList rows() const;
    QStringList selected() const;
    static QStringList texts(const QListWidget& list);
    void map(const QStringList& names, int target) const
    {
        select(names);
        find<QListWidget>("toList").setCurrentRow(target);
        press("mapButton");
    }

    ModuleFixture m_module;
    std::unique_ptr<RecordingHost> m_host;
    RecordingInvoker::Ptr m_invoker;
    VnJsonPtr m_tree;
    VnUiModeDialogBasePtr m_dialog;
};

void TestLaytrans::init()
{
    m_host = std::make_unique<RecordingHost>();
    vn_user_config(transkey::kConfigSection)->RemoveKey(transkey::kConfigSettings);
}

void TestLaytrans::cleanup()
{
    m_dialog = {};
    m_host.reset();
}

void TestLaytrans::open(const QString& json, const QStringList& keys)
{
    m_tree = tree(json);
    m_invoker = RecordingInvoker::create(*m_host, keys);
    m_invoker->setMarkerKey(transkey::kRequestCode);
    m_dialog = m_module.createDialog("Dialog/CmdLaytrans", m_tree, OdRxObjectPtr(m_invoker.get()));
    m_dialog->widget()->show();
}

void TestLaytrans::load(const QString& mappings)
{
    m_invoker->setAnswer([&](const VnJsonPtr& root) {
        merge(root, R"({"ltransToloadList":)" + kTargets + "}");
        if (!mappings.isEmpty())
            merge(root, R"({"ltransMaploadList":)" + mappings + "}");
    });
    m_host->answer(1, kFiles);
    press("loadButton");
    m_invoker->setAnswer({});
    m_host->takeLog();
}

QStringList TestLaytrans::texts(const QListWidget& list)
{
    QStringList all;
    for (int row = 0; row < list.count(); ++row)
        all.append(list.item(row)->text());
    return all;
}

QStringList TestLaytrans::rows() const
{
    const auto& table = find<QTableWidget>("mapTable");
    QStringList all;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(table.item(row, column)->text());
        all.append(cells.join('|'));
    }
    return all;
}

void TestLaytrans::select(const QStringList& names) const
{
    auto& list = find<QListWidget>("fromList");
    list.clearSelection();
    for (const QString& name : names)
        list.findItems(name, Qt::MatchExactly).first()->setSelected(true);
}

QStringList TestLaytrans::selected() const
{
    QStringList names;
    for (const QListWidgetItem* item : find<QListWidget>("fromList").selectedItems())
        names.append(item->text());
    names.sort();
    return names;
}

void TestLaytrans::choose(const char* menuOwner, const QString& text) const
{
    for (QAction* action : find<QWidget>(menuOwner).findChild<QMenu*>()->actions()) {
        if (action->text() == text)
            return action->trigger();
    }
    QFAIL(qPrintable("no action " + text));
}

void TestLaytrans::shown()
{
    open();
    QCOMPARE(from(), (QStringList{"Wall", "door", "窗", "Straße"}));
    const auto& list = find<QListWidget>("fromList");
    QCOMPARE(list.item(0)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    const auto picture = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
    const auto resource = [&](const char* name) {
        return picture(QIcon(QStringLiteral(":/res/Resources/layer_%1.bmp").arg(name)));
    };
    QCOMPARE(picture(list.item(0)->icon()), resource("current"));
    QCOMPARE(picture(list.item(1)->icon()), resource("nocurrent"));
    QVERIFY(!find("selectButton").isEnabled() && !find("mapSameButton").isEnabled());
    QVERIFY(find("saveButton").isEnabled());
}

/// Selected layers go in their order, each with a target of its own.
void TestLaytrans::mapped()
{
    open();
    load();
    select({"Wall"});
    press("mapButton"); // No target is current.
    QCOMPARE(rows(), QStringList());
    map({"窗", "Wall"}, 0);
    QCOMPARE(rows(),
        (QStringList{"Wall|WALL|7|Dashed|0.25 mm|30|普通", "窗|WALL|7|Dashed|0.25 mm|30|普通"}));
    QCOMPARE(from(), (QStringList{"door", "Straße"}));
    map({"door"}, 1);
    map({"Straße"}, 2);
    QCOMPARE(rows().mid(2),
        (QStringList{"door|Doors|RGB:255,0,0|||0|", "Straße|STRASSE|RGB:129,129,129|||0|"}));
    press("mapButton"); // Nothing is left to map.
    QCOMPARE(rows().size(), 4);
}

/// Names pair without regard to case, a letter for a letter.
void TestLaytrans::mapsSame()
{
    open();
    load();
    QVERIFY(find("mapSameButton").isEnabled());
    press("mapSameButton");
    QCOMPARE(rows(), QStringList{"Wall|WALL|7|Dashed|0.25 mm|30|普通"});
    QCOMPARE(from(), (QStringList{"door", "窗", "Straße"}));
    QVERIFY(!find("mapSameButton").isEnabled());
}

void TestLaytrans::selectsByName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("selection");
    QTest::newRow("other case") << "wALL" << QStringList{"Wall", "窗"};
    QTest::newRow("no wildcards") << "w*" << QStringList{"窗"};
    QTest::newRow("whole name") << "wal" << QStringList{"窗"};
}

void TestLaytrans::selectsByName()
{
    QFETCH(QString, text);
    open();
    select({"窗"});
    find<QLineEdit>("filterEdit").setText(text);
    QVERIFY(find("selectButton").isEnabled());
    press("selectButton");
    QTEST(selected(), "selection");
    find<QLineEdit>("filterEdit").clear();
    QVERIFY(!find("selectButton").isEnabled());
}

/// Mappings in files apply to layers that are there and free; the first file counts.
void TestLaytrans::loadsMappings()
{
    open();
    select({"窗"});
    load(R"([{"Ltransmapfrom":{"LayerNameT":"DOOR"},"Ltransmapto":{"transToName":"D1"}},
        {"Ltransmapfrom":{"LayerNameT":"door"},"Ltransmapto":{"transToName":"D2"}},
        {"Ltransmapfrom":{"LayerNameT":"gone"},"Ltransmapto":{"transToName":"D3"}},
        {"Ltransmapfrom":{"LayerNameT":"wall"}},7])");
    QCOMPARE(to(), (QStringList{"WALL", "Doors", "STRASSE"}));
    QCOMPARE(rows(), QStringList{"door|D1|RGB:0,0,0|||0|"});
    QCOMPARE(from(), (QStringList{"Wall", "窗", "Straße"}));
    QCOMPARE(selected(), QStringList{"窗"});
    load(R"([{"Ltransmapfrom":{"LayerNameT":"door"},"Ltransmapto":{"transToName":"D4"}}])");
    QCOMPARE(rows(), QStringList{"door|D1|RGB:0,0,0|||0|"}); // The user's stays.
}

/// Layers go back to where they were, and can be mapped again.
void TestLaytrans::givesBack()
{
    open();
    load();
    map({"Wall", "door", "窗"}, 1);
    auto& table = find<QTableWidget>("mapTable");
    press("deleteButton"); // No row is selected.
    QCOMPARE(rows().size(), 3);
    table.selectRow(1);
    press("deleteButton");
    QCOMPARE(from(), (QStringList{"door", "Straße"}));
    QVERIFY(!find("mapSameButton").isEnabled());
    choose("mapTable", QStringLiteral("全部删除(&R)"));
    QCOMPARE(from(), (QStringList{"Wall", "door", "窗", "Straße"}));
    QVERIFY(rows().isEmpty() && find("mapSameButton").isEnabled());
}

/// Only the mapping that is edited changes, neither its neighbour nor the list of targets.
void TestLaytrans::edited()
{
    open();
    load();
    map({"Wall", "窗"}, 0);
    auto& table = find<QTableWidget>("mapTable");
    press("editButton"); // No row is selected.
    QCOMPARE(m_host->log(), QStringList());
    table.selectRow(1);
    VnJsonPtr question;
    m_host->answer([&](const VnJsonPtr& asked) {
        question = ElementValue::clone(asked);
        merge(asked, kEdited);
        return 1;
    });
    const QPoint place = table.visualItemRect(table.item(1, 3)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    QVERIFY(
        m_host->takeLog().last().startsWith("dialog|Dialog/CmdLayer|Dialog/CmdLaytransNewEdit|"));
    QVERIFY(question->GetDataB("ltransInitIsEditLayer"));
    QCOMPARE(
        question->GetDataJ("ltransInitNewEditLayer")->GetDataSW("transToName"), OdString(L"WALL"));
    QCOMPARE(rows(), (QStringList{"Wall|WALL|7|Dashed|0.25 mm|30|普通",
                         "窗|W2|RGB:3,2,1|CENTER|0.50 mm|90|ByBlock"}));
    QCOMPARE(to(), (QStringList{"WALL", "Doors", "STRASSE"}));
    const VnJsonPtr target = m_tree->GetDataJ(transkey::kMappings)(1)->GetDataJ("Ltransmapto");
    QCOMPARE(target->GetDataI("transToLineWidth"), 50);
    QCOMPARE(target->GetDataL("transTolinet"), OdInt64(33));
    QCOMPARE(target->GetDataB("transTobUsed"), true);
    m_host->answer(2, kEdited); // Cancelled, whatever it wrote.
    choose("mapTable", QStringLiteral("编辑(&E)..."));
    QVERIFY(rows()[1].startsWith("窗|W2|"));
}

void TestLaytrans::savedUntilChanged()
{
    open();
    load();
    map({"Wall"}, 0);
    const auto save = [&](int result) {
        m_invoker->setAnswer([result](const VnJsonPtr& root) {
            QVERIFY(!root->GetDataI("result"));
            QCOMPARE(root->GetDataJ("ltransMapListArray").ArrayCount(), 1);
            QCOMPARE(root->GetDataJ("ltransSaveMapListdlg")->GetDataSW("filePath"),
                OdString(L"/d/s.dws"));
            root->set("result", result);
        });
        m_host->answer(1, R"({"filePath":"/d/s.dws"})");
        press("saveButton");
    };
    const auto sentFlag = [&] {
        m_invoker->setAnswer({});
        press("translateButton");
        return m_tree->GetDataB("laytransLMapBSave");
    };
    save(0);
    QVERIFY(find("saveButton").isEnabled() && !sentFlag());
    save(1);
    QVERIFY(!find("saveButton").isEnabled() && sentFlag());
    map({"door"}, 1);
    QVERIFY(find("saveButton").isEnabled() && !sentFlag());
    m_host->answer(2);
    press("saveButton"); // Cancelled: nothing is asked of the command.
    QVERIFY(m_host->log().last().startsWith("dialog|"));
}

/// What is asked of whom, in order.
void TestLaytrans::requests_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("action"); // Empty for a button.
    QTest::addColumn<QString>("answer"); // Of the dialog that is opened; empty for none.
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("log");
    const QStringList load{R"(dialog|Dialog/Common|FileDialogBox|{"MutiFile":true,"Open":true,)"
                           R"-("caption":"选择图形文件","defFilter":"图形(*.dwg)","dir":"/d",)-"
                           R"-("filter":"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt)"})-",
        R"(request|1|0|{"laytransLToCount":false,"laytransLoadJ":["/d/a.dws","/d/b.dwg"]})"};
    const QStringList loadKeys{"laytransLoadJ", "laytransLToCount"};
    QTest::newRow("load") << "loadButton"
                          << "" << kFiles << loadKeys << load;
    QTest::newRow("load by menu") << "toList"
                                  << "加载(&L)..." << kFiles << loadKeys << load;
    QTest::newRow("save")
        << "saveButton"
        << ""
        << R"({"filePath":"/s"})" << QStringList{"ltransMapListArray"}
        << QStringList{R"(dialog|Dialog/Common|FileDialogBox|{"MutiFile":false,"Open":false,)"
                       R"-("caption":"保存图层映射","defFilter":"标准(*.dws)","dir":"plan.dws",)-"
                       R"-("filter":"图形(*.dwg);;标准(*.dws)"})-",
               R"(request|0|0|{"ltransMapListArray":[]})"};
    QTest::newRow("purge") << "fromList"
                           << "清理图层(&P)"
                           << "" << QStringList{"LaytransTheme"}
                           << QStringList{R"(request|2|0|{"LaytransTheme":false})"};
    const QString made = R"({"ltransResultNewEditLayer":{"ltransResultNewLayName":"N"}})";
    const QStringList layer{
        R"(dialog|Dialog/CmdLayer|Dialog/CmdLaytransNewEdit|{"ltransInitIsEditLayer":false,)"
        R"("ltransInitNewEditLayer":{"transToColor":{"clrMethod":194,"selectClr":255},)"
        R"("transToName":"Doors"},)"
        R"("newToLayerNameArray":{"ToLayerNameArray":["WALL","Doors","STRASSE"]}})",
        R"(request|3|0|{"ltransNewlayer":{"ltransResultNewLayName":"N"}})"};
    const QStringList layerKeys{"ltransNewlayer"};
    QTest::newRow("new") << "newButton"
                         << "" << made << layerKeys << layer;
    QTest::newRow("new by menu") << "toList"
                                 << "新建(&N)..." << made << layerKeys << layer;
    QTest::newRow("settings") << "settingButton"
                              << ""
                              << "" << QStringList{"currentFromLName", "currentFromLNames"}
                              << QStringList{R"(request|4|0|{"currentFromLNames":["Wall","窗"]})"};
}

void TestLaytrans::requests()
{
    QFETCH(QString, widget);
    QFETCH(QString, action);
    QFETCH(QString, answer);
    QFETCH(QStringList, keys);
    open(kTree, keys);
    load();
    select({"Wall", "窗"});
    find<QListWidget>("toList").setCurrentRow(1);
    if (!answer.isEmpty())
        m_host->answer(1, answer);
    if (action.isEmpty())
        press(widget.toUtf8().constData());
    else
        choose(widget.toUtf8().constData(), action);
    QTEST(m_host->log(), "log");
    QCOMPARE(to().size(), 3); // No answer is no new list.
    QCOMPARE(from().size(), 4);
}

/// One request a click, with the layer's own name.
void TestLaytrans::clicks()
{
    open(kTree, {"laytransFMClickedName", "laytransisMaplist"});
    load();
    map({"door"}, 0);
    const auto& list = find<QListWidget>("fromList");
    QTest::mouseClick(
        list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    const auto& table = find<QTableWidget>("mapTable");
    QTest::mouseClick(
        table.viewport(), Qt::LeftButton, {}, table.visualItemRect(table.item(0, 1)).center());
    QCOMPARE(m_host->takeLog(),
        (QStringList{R"(request|7|0|{"laytransFMClickedName":"窗","laytransisMaplist":false})",
            R"(request|7|0|{"laytransFMClickedName":"door","laytransisMaplist":true})"}));
    QCOMPARE(m_tree->GetDataJ(transkey::kMappings).ArrayCount(), 1);
    QCOMPARE(m_tree->GetDataJ(transkey::kSources).ArrayCount(), 3);
    const auto& targets = find<QListWidget>("toList");
    const QPoint place = targets.visualItemRect(targets.item(0)).center();
    m_host->answer(2);
    QTest::mouseClick(targets.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(targets.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_host->log().size(), 1);
    QVERIFY(m_host->log().last().contains("CmdLaytransNewEdit"));
}

/// The record the command answers is used at once and at the next start.
void TestLaytrans::settingsKept()
{
    open();
    select({"door"});
    m_invoker->setAnswer([](const VnJsonPtr& root) {
        QCOMPARE(root->GetDataSW("currentFromLName"), OdString(L"door"));
        QVERIFY(!root->HasKey("currentFromLNames"));
        root->GetDataJ("LtransSettingParamset")(0)->SetDataB("LtransSettingData", true);
    });
    press("settingButton"); // What the command does to the question is no answer.
    m_invoker->setAnswer([](const VnJsonPtr& root) {
        QVERIFY(!root->GetDataJ("LtransSettingParamset")(0)->GetDataB("LtransSettingData", true));
        merge(root, R"({"LtransSettingParams":[{"LtransSettingData":true},{},{},{},{},{}]})");
    });
    press("settingButton");
    const auto isUsed = [&] {
        m_invoker->setAnswer({});
        press("translateButton");
        return m_tree->GetDataJ(transkey::kSettingsToUse)(0)->GetDataB("LtransSettingData");
    };
    QVERIFY(isUsed());
    open();
    QVERIFY(isUsed());
}

void TestLaytrans::translated_data()
{
    QTest::addColumn<int>("mapped");
    QTest::addColumn<bool>("closes");
    QTest::newRow("done") << 2 << true;
    QTest::newRow("refused") << 1 << false;
    QTest::newRow("nothing mapped") << 0 << false;
}

void TestLaytrans::translated()
{
    QFETCH(int, mapped);
    QFETCH(bool, closes);
    open();
    load();
    map(from().mid(0, 1), 0);
    press("translateButton"); // Leaves its arguments in the tree.
    choose("mapTable", QStringLiteral("全部删除(&R)"));
    if (mapped > 0)
        map(from().mid(0, mapped), 0);
    m_invoker->setAnswer([&](const VnJsonPtr& root) {
        QCOMPARE(root->GetDataI("laytransLMapRow", -1), mapped);
        QCOMPARE(root->HasKey("laytransLMapOkDatas"), mapped > 0);
        QCOMPARE(root->GetDataJ("laytransLMapOkDatas").ArrayCount(), mapped);
        QCOMPARE(root->GetDataJ("laytransLFromOkDatas").ArrayCount(), 4 - mapped);
        QCOMPARE(root->GetDataJ("LtransSettingParamOK").ArrayCount(), 6);
        if (closes)
            root->SetDataB("LaytransCloseDlg", true);
    });
    press("translateButton");
    QCOMPARE(m_dialog->widget()->isVisible(), !closes);
    QCOMPARE(m_dialog->resultData()->GetDataI("result", -1), closes ? 1 : -1);
}

/// Layers that are mapped do not come back with the layers that are left.
void TestLaytrans::purged()
{
    open();
    load();
    map({"door"}, 0);
    m_invoker->setAnswer([](const VnJsonPtr& root) {
        merge(root, R"({"LaytransTheme":[{"LayerNameT":"Wall"},{"LayerNameT":"Door"}]})");
    });
    choose("fromList", QStringLiteral("清理图层(&P)"));
    QCOMPARE(from(), QStringList{"Wall"});
    QCOMPARE(rows().size(), 1);
    choose("fromList", QStringLiteral("全部选择(&S)"));
    QCOMPARE(selected(), QStringList{"Wall"});
    choose("fromList", QStringLiteral("全部清除(&C)"));
    QCOMPARE(selected(), QStringList());
}

void TestLaytrans::nobodyToAsk()
{
    m_dialog = m_module.createDialog("Dialog/CmdLaytrans", {});
    m_dialog->widget()->show();
    for (const char* button : {"translateButton", "settingButton", "editButton", "deleteButton"})
        press(button);
    m_host->answer(1, kFiles);
    press("loadButton");
    m_host->answer(1, R"({"filePath":"/d/s.dws"})");
    press("saveButton");
    QVERIFY(m_host->log().last().contains(R"("dir":"Drawing1.dws")"));
    QVERIFY(find("saveButton").isEnabled());
    press("helpButton");
    QCOMPARE(m_host->log().last(), QStringLiteral("help|0"));
    press("cancelButton");
    QVERIFY(!m_dialog->widget()->isVisible());
}

QTEST_MAIN(TestLaytrans)

#include "tst_laytrans.moc"
