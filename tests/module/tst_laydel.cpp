#include "listdriver.h"
#include "rows.h"
#include "valuetree.h"

using namespace vnsi;

namespace {

const char kName[] = "Dialog/CmdLaydel";
const char kLayers[] =
    R"({"IsExistBlock":true,"LayerList":[{"LayerName":"A%1"},{"LayerName":"b"},{"LayerName":"B"}]})";

} // namespace

class TestLaydel : public QObject
{
    Q_OBJECT

private slots:
    void asksAndMarks_data()
    {
        const Rows<QList<int>, bool, QString> row("rows", "inBlocks", "question");
        row("one", {0}, false,
            "图层 A%1 将被删除。\n\n此图层上的所有对象或参照此图层的所有对象都将被"
            "删除。");
        row("several", {0, 1, 2}, false,
            "3 图层将被删除。\n\n这些图层上的所有对象或参照这些图层的所有对象都将"
            "被删除。");
        row("one in blocks", {0}, true,
            "将要删除的图层“A%"
            "1”，该图层在块中被参照。\n将要删除该图层上的所有对象并重定义已参照的"
            "块。\n\n是否继续？");
        row("several in blocks", {0, 2}, true,
            "将要删除 2 "
            "个图层，其中某些图层在块中被参照。\n将要删除该图层上的所有对象并重定义已参照"
            "的块。\n\n是否继续？");
    }

    void asksAndMarks()
    {
        QFETCH(QList<int>, rows);
        QFETCH(bool, inBlocks);
        QFETCH(QString, question);
        ListDriver driver(m_module, kName, kLayers, [&](const VnJsonPtr& root) {
            QVERIFY(!root->GetDataB("IsExistBlock", true)); // The old answer was cleared.
            if (inBlocks)
                root->SetDataB("IsExistBlock", true);
        });
        driver.host.answer(2);
        driver.host.answer(1);
        const int result = driver.run([&](ListDriver& user) {
            user.select(rows);
            user.press("okButton"); // Declined at first.
            for (int i = 0; i < 3; ++i) {
                const VnJsonPtr record = user.record(i);
                QCOMPARE(record->GetDataB("IsSelected", !rows.contains(i)), rows.contains(i));
                QVERIFY(!host::hasKey(record, "CurLayer") && !host::hasKey(record, "Modified"));
            }
            QCOMPARE(user.list->selectedItems().size(), rows.size());
            user.press("okButton");
        });
        QCOMPARE(result, 1);
        QVERIFY(!driver.staysOpen);
        QCOMPARE(driver.host.log().size(), 4);
        QVERIFY(driver.host.log()[0].startsWith("request|6|0|"));
        QCOMPARE(driver.host.log()[1], "messageEx|图层删除 - 删除确认|" + question + "|1|1|32");
        for (int i = 0; i < 3; ++i) {
            const VnJsonPtr record = driver.record(i);
            QCOMPARE(record->GetDataI("CurLayer", -1), rows.contains(i) ? 2 : -1);
            QCOMPARE(record->GetDataI("Modified", -1), rows.contains(i) ? 1 : -1);
        }
    }

    void doubleClickIsOk()
    {
        ListDriver driver(m_module, kName, kLayers);
        driver.host.answer(1);
        QCOMPARE(driver.run([](ListDriver& user) { user.doubleClick(1); }), 1);
        QVERIFY(driver.host.log().last().contains("图层 b 将被删除"));
        QVERIFY(!host::hasKey(driver.record(2), "CurLayer")); // Not "B".
    }

    void doesNothingUnselected()
    {
        ListDriver driver(m_module, kName, kLayers);
        QCOMPARE(driver.run([](ListDriver& user) {
            QCOMPARE(textsOf(*user.list), (QStringList{"A%1", "b", "B"}));
            QCOMPARE(user.dialog.window()->windowTitle(), QString("删除图层"));
            QCOMPARE(user.list->currentRow(), 0);
            user.list->clearSelection();
            user.press("okButton");
            user.press("helpButton");
            QVERIFY(user.dialog.window()->isVisible());
            user.press("cancelButton");
        }),
            2);
        QCOMPARE(driver.host.log(), QStringList{"help|0"});
        QVERIFY(!driver.staysOpen);
        QVERIFY(!host::hasKey(driver.root, "marker"));
    }

    void staysEmptyWithoutCommand()
    {
        const auto dialog = m_module.createDialog(kName, tree(kLayers));
        QCOMPARE(child<QListWidget>(dialog, "layerList").count(), 0);
    }

private:
    ModuleFixture m_module;
};

QTEST_MAIN(TestLaydel)

#include "tst_laydel.moc"
