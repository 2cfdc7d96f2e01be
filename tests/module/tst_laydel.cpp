#include "listfixture.h"

using namespace vnsi;

namespace {

const char kName[] = "Dialog/CmdLaydel";
const char kLayers[] =
    R"({"IsExistBlock":true,"LayerList":[{"LayerName":"A%1"},{"LayerName":"b"},{"LayerName":"B"}]})";

} // namespace

class TestLaydel : public ListFixture
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
        open(kName, kLayers, [&](const VnJsonPtr& root) {
            QVERIFY(!root->GetDataB("IsExistBlock", true)); // The old answer was cleared.
            if (inBlocks)
                root->SetDataB("IsExistBlock", true);
        });
        m_host->answer(2);
        m_host->answer(1);
        const int result = run([&] {
            select(rows);
            press("okButton"); // Declined at first.
            for (int i = 0; i < 3; ++i) {
                const VnJsonPtr layer = record(i);
                QCOMPARE(layer->GetDataB("IsSelected", !rows.contains(i)), rows.contains(i));
                QVERIFY(!host::hasKey(layer, "CurLayer") && !host::hasKey(layer, "Modified"));
            }
            QCOMPARE(m_list->selectedItems().size(), rows.size());
            press("okButton");
        });
        QCOMPARE(result, 1);
        QVERIFY(!m_staysOpen);
        QCOMPARE(log().size(), 4);
        QVERIFY(log()[0].startsWith("request|6|0|"));
        QCOMPARE(log()[1], "messageEx|图层删除 - 删除确认|" + question + "|1|1|32");
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(record(i)->GetDataI("CurLayer", -1), rows.contains(i) ? 2 : -1);
            QCOMPARE(record(i)->GetDataI("Modified", -1), rows.contains(i) ? 1 : -1);
        }
    }

    void doubleClickIsOk()
    {
        open(kName, kLayers);
        m_host->answer(1);
        QCOMPARE(run([&] { doubleClick(1); }), 1);
        QVERIFY(log().last().contains("图层 b 将被删除"));
        QVERIFY(!host::hasKey(record(2), "CurLayer")); // Not "B".
    }

    void doesNothingUnselected()
    {
        open(kName, kLayers);
        QCOMPARE(run([&] {
            QCOMPARE(textsOf(*m_list), (QStringList{"A%1", "b", "B"}));
            QCOMPARE(title(), "删除图层");
            QCOMPARE(m_list->currentRow(), 0);
            m_list->clearSelection();
            press("okButton");
            press("helpButton");
            QVERIFY(isOpen());
            press("cancelButton");
        }),
            2);
        QCOMPARE(log(), QStringList{"help|0"});
        QVERIFY(!m_staysOpen);
        QVERIFY(!host::hasKey(m_tree, "marker"));
    }

    void staysEmptyWithoutCommand()
    {
        const auto dialog = m_module.createDialog(kName, tree(kLayers));
        QCOMPARE(child<QListWidget>(dialog, "layerList").count(), 0);
    }
};

QTEST_MAIN(TestLaydel)
#include "tst_laydel.moc"
