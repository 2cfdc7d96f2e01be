#include "dialogfixture.h"
#include "translatorkeys.h"
#include "vnsettings.h"

#include <stdexcept>

using namespace vnsi;

namespace {

const QString kTree = QStringLiteral(R"({"LaytransDwgName":"plan","LaytransTheme":[
    {"LayerNameT":"Wall","bUsedT":true},{"LayerNameT":"door"},{"LayerNameT":"窗"},
    {"LayerNameT":"Straße"}]})");
const QStringList kLayers{"Wall", "door", "窗", "Straße"};

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

/// A mapping of layer `from` to layer `to` as files contain it.
QString mapping(const QString& from, const QString& to)
{
    return QStringLiteral(
        R"({"Ltransmapfrom":{"LayerNameT":"%1"},"Ltransmapto":{"transToName":"%2"}})")
        .arg(from, to);
}

} // namespace

class TestLaytrans : public DialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        DialogFixture::init();
        hostextras::removeKey(*vn_user_config(transkey::kConfigSection), transkey::kConfigSettings);
    }

    void shown()
    {
        open();
        QCOMPARE(from(), kLayers);
        const auto& list = fromList();
        QCOMPARE(list.item(0)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        const auto picture = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
        const auto resource = [&](const char* name) {
            return picture(QIcon(QStringLiteral(":/res/Resources/layer_%1.bmp").arg(name)));
        };
        QCOMPARE(picture(list.item(0)->icon()), resource("current"));
        QCOMPARE(picture(list.item(1)->icon()), resource("nocurrent"));
        QVERIFY(!isEnabled("selectButton") && !isEnabled("mapSameButton"));
        QVERIFY(isEnabled("saveButton"));
    }

    /// Selected layers are mapped in their order, each to a target of its own.
    void mapped()
    {
        open();
        load();
        select({"Wall"});
        press("mapButton"); // No target is selected.
        QCOMPARE(rows(), QStringList());
        map({"窗", "Wall"}, 0);
        QCOMPARE(rows(), (QStringList{"Wall|WALL|7|Dashed|0.25 mm|30|普通",
                             "窗|WALL|7|Dashed|0.25 mm|30|普通"}));
        QCOMPARE(from(), (QStringList{"door", "Straße"}));
        map({"door"}, 1);
        map({"Straße"}, 2);
        QCOMPARE(rows().mid(2),
            (QStringList{"door|Doors|RGB:255,0,0|||0|", "Straße|STRASSE|RGB:129,129,129|||0|"}));
        press("mapButton"); // No layer is left to map.
        QCOMPARE(rows().size(), 4);
    }

    /// Names are matched without letter case, one letter for one letter.
    void mapsSame()
    {
        open();
        load();
        QVERIFY(isEnabled("mapSameButton"));
        press("mapSameButton");
        QCOMPARE(rows(), QStringList{"Wall|WALL|7|Dashed|0.25 mm|30|普通"});
        QCOMPARE(from(), (QStringList{"door", "窗", "Straße"}));
        QVERIFY(!isEnabled("mapSameButton"));
    }

    /// Of several layers that differ in letter case only, the selected ones are mapped and none is
    /// lost.
    void tellsTwinsApart()
    {
        open(
            R"({"LaytransTheme":[{"LayerNameT":"wall"},{"LayerNameT":"Wall"},{"LayerNameT":"a"},{},7]})");
        load();
        map({"Wall"}, 1);
        QCOMPARE(from(), (QStringList{"wall", "a"}));
        map({"wall"}, 1);
        QCOMPARE(rows().size(), 2);
        mapTable().selectRow(0);
        press("deleteButton");
        QCOMPARE(from(), (QStringList{"Wall", "a"}));
        m_invoker->setAnswer([](const VnJsonPtr& root) {
            merge(root, R"({"LaytransTheme":[{"LayerNameT":"Wall"},{"LayerNameT":"wall"}]})");
        });
        choose("fromList", "清理图层(&P)");
        QCOMPARE(from(), QStringList{"Wall"});
        choose("mapTable", "全部删除(&R)");
        map({"wall", "Wall"}, 0);
        QCOMPARE(rows().size(), 2);
    }

    void selectsByName_data()
    {
        const Rows<QString, QStringList> row("text", "selection");
        row("other case", "wALL", {"Wall", "窗"});
        row("no wildcards", "w*", {"窗"});
        row("whole name", "wal", {"窗"});
    }

    void selectsByName()
    {
        QFETCH(QString, text);
        open();
        select({"窗"});
        find<QLineEdit>("filterEdit").setText(text);
        QVERIFY(isEnabled("selectButton"));
        press("selectButton");
        QTEST(selected(), "selection");
        find<QLineEdit>("filterEdit").clear();
        QVERIFY(!isEnabled("selectButton"));
    }

    /// Mappings from files apply to existing layers that are not mapped yet.
    void loadsMappings_data()
    {
        const Rows<QString, QStringList> row("mappings", "mapped");
        row("the first file's", mapping("DOOR", "D1") + ',' + mapping("door", "D2"), {"door|D1"});
        row("of no layer here", mapping("gone", "D3"), {});
        row("without a target", R"({"Ltransmapfrom":{"LayerNameT":"wall"}})", {});
        row("without a layer", R"({"Ltransmapto":{"transToName":"D4"}},7,{})", {});
        row("behind what is broken",
            R"(null,{"Ltransmapfrom":3,"Ltransmapto":[]},)" + mapping("wall", "D5"), {"Wall|D5"});
    }

    void loadsMappings()
    {
        QFETCH(QString, mappings);
        open();
        select({"窗"});
        load(mappings);
        QStringList mapped = rows();
        for (QString& row : mapped)
            row = row.section('|', 0, 1);
        QTEST(mapped, "mapped");
        QCOMPARE(from().size() + mapped.size(), 4);
        QCOMPARE(to(), (QStringList{"WALL", "Doors", "STRASSE"}));
        QCOMPARE(selected(), QStringList{"窗"});
        const QStringList before = rows();
        load(mapping("door", "D6") + ',' + mapping("wall", "D7"));
        for (const QString& row : before) // The user's mapping is kept.
            QVERIFY(rows().contains(row));
        QCOMPARE(rows().size(), 2);
    }

    /// Unmapped layers return to their former place and can be mapped again.
    void givesBack()
    {
        open();
        load();
        map({"Wall", "door", "窗"}, 1);
        press("deleteButton"); // No row is selected.
        QCOMPARE(rows().size(), 3);
        mapTable().selectRow(1);
        press("deleteButton");
        QCOMPARE(from(), (QStringList{"door", "Straße"}));
        QVERIFY(!isEnabled("mapSameButton"));
        choose("mapTable", "全部删除(&R)");
        QCOMPARE(from(), kLayers);
        QVERIFY(rows().isEmpty() && isEnabled("mapSameButton"));
    }

    /// Only the edited mapping changes, neither its neighbour nor the list of targets.
    void edited()
    {
        open();
        load();
        map({"Wall", "窗"}, 0);
        auto& table = mapTable();
        press("editButton"); // No row is selected.
        QCOMPARE(log(), QStringList());
        VnJsonPtr question;
        m_host->answer([&](const VnJsonPtr& asked) {
            question = hostextras::copyOf(asked);
            merge(asked, kEdited);
            return 1;
        });
        clickCell(table, 1, 3, true);
        QVERIFY(m_host->takeLog().last().startsWith(
            "dialog|Dialog/CmdLayer|Dialog/CmdLaytransNewEdit|"));
        QVERIFY(question->GetDataB("ltransInitIsEditLayer"));
        QCOMPARE(question->GetDataJ("ltransInitNewEditLayer")->GetDataSW("transToName"),
            OdString(L"WALL"));
        const QStringList changed{
            "Wall|WALL|7|Dashed|0.25 mm|30|普通", "窗|W2|RGB:3,2,1|CENTER|0.50 mm|90|ByBlock"};
        QCOMPARE(rows(), changed);
        QCOMPARE(to(), (QStringList{"WALL", "Doors", "STRASSE"}));
        m_host->answer(2, kEdited); // Cancelled, whatever the dialog wrote.
        choose("mapTable", "编辑(&E)...");
        QCOMPARE(rows(), changed);
        clickCell(table, 1);
        const VnJsonPtr target = m_tree->GetDataJ(transkey::kMappings)(1)->GetDataJ("Ltransmapto");
        QCOMPARE(target->GetDataI("transToLineWidth"), 50);
        QCOMPARE(target->GetDataL("transTolinet"), OdInt64(33));
        QCOMPARE(target->GetDataB("transTobUsed"), true);
    }

    void savedUntilChanged()
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
                root->SetDataI("result", result);
            });
            m_host->answer(1, R"({"filePath":"/d/s.dws"})");
            press("saveButton");
            QVERIFY(!m_tree->GetDataI("result")); // This is not the dialog's own result.
        };
        const auto sentFlag = [&] {
            m_invoker->setAnswer({});
            press("translateButton");
            return m_tree->GetDataB("laytransLMapBSave");
        };
        save(0);
        QVERIFY(isEnabled("saveButton") && !sentFlag());
        save(1);
        QVERIFY(!isEnabled("saveButton") && sentFlag());
        map({"door"}, 1);
        QVERIFY(isEnabled("saveButton") && !sentFlag());
        m_host->answer(2);
        press("saveButton"); // After cancelling, nothing is asked of the command.
        QVERIFY(log().last().startsWith("dialog|"));
    }

    /// Questions and requests in their order. Without an `entry` of its menu the widget is a
    /// button. An empty `answer` means that no dialog is expected.
    void requests_data()
    {
        const Rows<QString, QString, QString, QStringList, QStringList> row(
            "widget", "entry", "answer", "keys", "log");
        const QStringList load{R"(dialog|Dialog/Common|FileDialogBox|{"MutiFile":true,"Open":true,)"
                               R"-("caption":"选择图形文件","defFilter":"图形(*.dwg)","dir":"/d",)-"
                               R"-("filter":"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt)"})-",
            R"(request|1|0|{"laytransLToCount":false,"laytransLoadJ":["/d/a.dws","/d/b.dwg"]})"};
        const QStringList loadKeys{"laytransLoadJ", "laytransLToCount"};
        row("load", "loadButton", "", kFiles, loadKeys, load);
        row("load by menu", "toList", "加载(&L)...", kFiles, loadKeys, load);
        row("save", "saveButton", "", R"({"filePath":"/s"})", {"ltransMapListArray"},
            {R"(dialog|Dialog/Common|FileDialogBox|{"MutiFile":false,"Open":false,)"
             R"-("caption":"保存图层映射","defFilter":"标准(*.dws)","dir":"plan.dws",)-"
             R"-("filter":"图形(*.dwg);;标准(*.dws)"})-",
                R"(request|0|0|{"ltransMapListArray":[]})"});
        row("purge", "fromList", "清理图层(&P)", "", {"LaytransTheme"},
            {R"(request|2|0|{"LaytransTheme":false})"});
        const QString made = R"({"ltransResultNewEditLayer":{"ltransResultNewLayName":"N"}})";
        const QStringList layer{
            R"(dialog|Dialog/CmdLayer|Dialog/CmdLaytransNewEdit|{"ltransInitIsEditLayer":false,)"
            R"("ltransInitNewEditLayer":{"transToColor":{"clrMethod":194,"selectClr":255},)"
            R"("transToName":"Doors"},)"
            R"("newToLayerNameArray":{"ToLayerNameArray":["WALL","Doors","STRASSE"]}})",
            R"(request|3|0|{"ltransNewlayer":{"ltransResultNewLayName":"N"}})"};
        row("new", "newButton", "", made, {"ltransNewlayer"}, layer);
        row("new by menu", "toList", "新建(&N)...", made, {"ltransNewlayer"}, layer);
        row("settings", "settingButton", "", "", {"currentFromLName", "currentFromLNames"},
            {R"(request|4|0|{"currentFromLNames":["Wall","窗"]})"});
    }

    void requests()
    {
        QFETCH(QString, widget);
        QFETCH(QString, entry);
        QFETCH(QString, answer);
        QFETCH(QStringList, keys);
        open(kTree, keys);
        load();
        select({"Wall", "窗"});
        toList().setCurrentRow(1);
        if (!answer.isEmpty())
            m_host->answer(1, answer);
        const std::string name = widget.toStdString();
        entry.isEmpty() ? press(name.c_str()) : choose(name.c_str(), entry);
        QTEST(log(), "log");
        QCOMPARE(to().size(), 3); // A missing answer is not a new list.
        QCOMPARE(from().size(), 4);
    }

    /// Each click sends one request with the layer's own name.
    void clicks()
    {
        open(kTree, {"laytransFMClickedName", "laytransisMaplist"});
        load();
        map({"door"}, 0);
        clickCell(fromList(), 1);
        clickCell(mapTable(), 0, 1);
        QCOMPARE(m_host->takeLog(),
            (QStringList{R"(request|7|0|{"laytransFMClickedName":"窗","laytransisMaplist":false})",
                R"(request|7|0|{"laytransFMClickedName":"door","laytransisMaplist":true})"}));
        QCOMPARE(m_tree->GetDataJ(transkey::kMappings).ArrayCount(), 1);
        QCOMPARE(m_tree->GetDataJ(transkey::kSources).ArrayCount(), 3);
        m_host->answer(2);
        clickCell(toList(), 0, 0, true);
        QCOMPARE(log().size(), 1);
        QVERIFY(log().last().contains("CmdLaytransNewEdit"));
    }

    /// The lists stay, whatever a failing or misbehaving command does to the tree.
    void keepsItsLists_data()
    {
        const auto spoil = [](const VnJsonPtr& root) {
            for (const VnJsonPtr& node : containersIn(root))
                host::clear(*node);
        };
        const Rows<RecordingInvoker::Answer> row("answer");
        row("empties the tree", spoil);
        row("empties the tree and throws", [spoil](const VnJsonPtr& root) {
            spoil(root);
            throw std::runtime_error("broken");
        });
        row("answers no lists", [](const VnJsonPtr& root) {
            merge(root, R"({"ltransToloadList":{"a":1},"ltransMaploadList":{},"LaytransTheme":{},
                "LtransSettingParams":[1],"result":"1","LaytransCloseDlg":"true"})");
        });
    }

    void keepsItsLists()
    {
        QFETCH(RecordingInvoker::Answer, answer);
        open();
        load();
        map({"door", "窗"}, 1);
        const QStringList before = from() + to() + rows();
        m_invoker->setAnswer(answer);
        m_host->answer(1, kFiles);
        press("loadButton");
        m_host->answer(1, R"({"filePath":"/s"})");
        press("saveButton");
        QVERIFY(isEnabled("saveButton"));
        m_host->answer(1, kEdited);
        press("newButton");
        choose("fromList", "清理图层(&P)");
        press("settingButton");
        clickCell(fromList(), 0);
        press("translateButton");
        QVERIFY(isOpen());
        QCOMPARE(from() + to() + rows(), before);
        m_invoker->setAnswer({});
        press("translateButton"); // Everything is still sent.
        QCOMPARE(m_tree->GetDataJ(transkey::kMappings).ArrayCount(), 2);
        QCOMPARE(m_tree->GetDataJ(transkey::kSettingsToUse).ArrayCount(), 6);
    }

    /// The record in the command's answer is used immediately and at the next start.
    void settingsKept()
    {
        open();
        select({"door"});
        m_invoker->setAnswer([](const VnJsonPtr& root) {
            QCOMPARE(root->GetDataSW("currentFromLName"), OdString(L"door"));
            QVERIFY(!host::hasKey(root, "currentFromLNames"));
            root->GetDataJ("LtransSettingParamset")(0)->SetDataB("LtransSettingData", true);
        });
        press("settingButton"); // Changes that the command makes to the question are no answer.
        m_invoker->setAnswer([](const VnJsonPtr& root) {
            QVERIFY(
                !root->GetDataJ("LtransSettingParamset")(0)->GetDataB("LtransSettingData", true));
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

    void translated_data()
    {
        const Rows<int, bool> row("mapped", "closes");
        row("done", 2, true);
        row("refused", 1, false);
        row("nothing mapped", 0, false);
    }

    void translated()
    {
        QFETCH(int, mapped);
        QFETCH(bool, closes);
        open();
        load();
        map(from().mid(0, 1), 0);
        press("translateButton"); // Its arguments remain in the tree.
        choose("mapTable", "全部删除(&R)");
        if (mapped > 0)
            map(from().mid(0, mapped), 0);
        m_invoker->setAnswer([&](const VnJsonPtr& root) {
            QCOMPARE(root->GetDataI("laytransLMapRow", -1), mapped);
            QCOMPARE(host::hasKey(root, "laytransLMapOkDatas"), mapped > 0);
            QCOMPARE(root->GetDataJ("laytransLMapOkDatas").ArrayCount(), mapped);
            QCOMPARE(root->GetDataJ("laytransLFromOkDatas").ArrayCount(), 4 - mapped);
            QCOMPARE(root->GetDataJ("LtransSettingParamOK").ArrayCount(), 6);
            if (closes)
                root->SetDataB("LaytransCloseDlg", true);
        });
        press("translateButton");
        QCOMPARE(isOpen(), !closes);
    }

    /// Mapped layers are not listed again among the remaining ones, and mappings of deleted layers
    /// are removed.
    void purged()
    {
        open();
        load();
        map({"door", "窗"}, 0);
        m_host->answer(1, R"({"filePath":"/s"})");
        m_invoker->setAnswer([](const VnJsonPtr& root) {
            merge(root,
                R"({"result":1,"LaytransTheme":[{"LayerNameT":"Wall"},{"LayerNameT":"Door"}]})");
        });
        press("saveButton");
        choose("fromList", "清理图层(&P)");
        QCOMPARE(from(), QStringList{"Wall"});
        QCOMPARE(rows(), QStringList{"Door|WALL|7|Dashed|0.25 mm|30|普通"});
        QVERIFY(isEnabled("saveButton"));
        choose("fromList", "全部选择(&S)");
        QCOMPARE(selected(), QStringList{"Wall"});
        choose("fromList", "全部清除(&C)");
        QCOMPARE(selected(), QStringList());
    }

    void nobodyToAsk()
    {
        m_dialog = m_module.createDialog("Dialog/CmdLaytrans", {});
        m_dialog.window()->show();
        for (const char* button :
            {"translateButton", "settingButton", "editButton", "deleteButton"})
            press(button);
        m_host->answer(1, kFiles);
        press("loadButton");
        m_host->answer(1, R"({"filePath":"/d/s.dws"})");
        press("saveButton");
        QVERIFY(log().last().contains(R"("dir":"Drawing1.dws")"));
        QVERIFY(isEnabled("saveButton"));
        press("helpButton");
        QCOMPARE(log().last(), "help|0");
        press("cancelButton");
        QVERIFY(!isOpen());
    }

private:
    void open(const QString& json = kTree, const QStringList& keys = {"none"})
    {
        DialogFixture::open("Dialog/CmdLaytrans", json, keys, transkey::kRequestCode);
    }
    /// Loads the targets. `mappings` are those in the files.
    void load(const QString& mappings = {})
    {
        m_invoker->setAnswer([&](const VnJsonPtr& root) {
            merge(root, R"({"ltransToloadList":)" + kTargets + "}");
            if (!mappings.isEmpty())
                merge(root, R"({"ltransMaploadList":[)" + mappings + "]}");
        });
        m_host->answer(1, kFiles);
        press("loadButton");
        m_invoker->setAnswer({});
        m_host->takeLog();
    }
    void choose(const char* menuOwner, const QString& text) const
    {
        chooseEntry(find<QWidget>(menuOwner), text);
    }
    QListWidget& fromList() const { return find<QListWidget>("fromList"); }
    QListWidget& toList() const { return find<QListWidget>("toList"); }
    QTableWidget& mapTable() const { return find<QTableWidget>("mapTable"); }
    void select(const QStringList& names) const { selectTexts(fromList(), names); }
    QStringList from() const { return textsOf(fromList()); }
    QStringList to() const { return textsOf(toList()); }
    QStringList rows() const { return rowTexts(mapTable()); }
    QStringList selected() const { return selectedTexts(fromList()); }
    void map(const QStringList& names, int target) const
    {
        select(names);
        toList().setCurrentRow(target);
        press("mapButton");
    }
};

QTEST_MAIN(TestLaytrans)
#include "tst_laytrans.moc"
