#include "listfixture.h"

namespace {

const char kName[] = "Dialog/CmdLaymrg";

/// Layers A, B, B, b and one without a name. The first `sources` of them are merged.
QString layers(bool isFrom, int sources = 0, int blocks = 0)
{
    QStringList records;
    for (const char* name : {"A", "B", "B", "b", ""}) {
        QString more;
        if (records.isEmpty())
            more = QStringLiteral(R"(,"IsFrom":%1,"blockrefcout":%2)")
                       .arg(isFrom ? "true" : "false")
                       .arg(blocks);
        if (records.size() < sources)
            more += R"(,"SoucLayer":true)";
        records.append(QStringLiteral(R"({"LayerName":"%1"%2})").arg(name).arg(more));
    }
    return QStringLiteral(R"({"LayerList":[%1]})").arg(records.join(','));
}

} // namespace

class TestLaymrg : public ListFixture
{
    Q_OBJECT

private slots:
    void marksSources()
    {
        open(kName, layers(true));
        QCOMPARE(title(), "合并图层");
        QVERIFY(!m_dialog.window()->findChild<QLineEdit*>());
        QCOMPARE(m_list->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(run([&] {
            m_list->clearSelection();
            press("okButton");
            QVERIFY(isOpen());
            select({0, 3});
            press("okButton");
        }),
            1);
        QCOMPARE(marks(), (QList<int>{5, 0, 0, 5, 0}));
        QVERIFY(log().isEmpty());
    }

    void refusesTarget_data()
    {
        const Rows<QString, QString> row("typed", "log");
        const QString unsupported = "message|\n名称 包含不支持的字符。\n\n\n不支持以下字符:  "
                                    "\\<>/\":;?*|,=`|图层-不支持的字符|0";
        row("forbidden, also unknown", "x/y", unsupported);
        row("unknown", "x", "message|图层名无效|Quenlith|0");
        row("other case", "a", "message|图层名无效|Quenlith|0");
        row("listed, but empty", "", "message|\n\n图层名至少必须包含一个字符。|图层名无效。|0");
    }

    void refusesTarget()
    {
        QFETCH(QString, typed);
        open(kName, layers(false, 1));
        const int result = run([&] {
            edit().setText(typed);
            press("okButton");
        });
        QCOMPARE(result, 2);
        QTEST(log().join('#'), "log");
        QCOMPARE(marks(), (QList<int>{0, 0, 0, 0, 0}));
    }

    void confirmsTarget_data()
    {
        const Rows<int, int, QString> row("sources", "blocks", "question");
        const QString plain = "。\n\n是否继续？";
        const QString redefines = "。\n将重定义已合并图层中参照的所用块。\n\n是否继续？";
        row("one", 1, 0, "\n将要把图层 A 合并到图层 B" + plain);
        row("none", 0, 1, "\n将要把图层  合并到图层 B" + redefines);
        row("two", 2, -1, "\n将要把 2 个图层合并到图层 B" + plain);
        row("three in blocks", 3, 2, "\n将要把 3 个图层合并到图层 B" + redefines);
    }

    void confirmsTarget()
    {
        QFETCH(int, sources);
        QFETCH(int, blocks);
        QFETCH(QString, question);
        open(kName, layers(false, sources, blocks));
        QCOMPARE(title(), "合并到图层");
        m_host->answer(7);
        m_host->answer(6);
        const QList<int> marked{0, 11, 0, 0, 0}; // Only the first of several layers with that name.
        const int result = run([&] {
            QCOMPARE(edit().text(), "A");
            select({1});
            press("okButton");
            QVERIFY(isOpen());
            QCOMPARE(marks(), marked); // Still marked after the question was declined.
            doubleClick(1);
        });
        QCOMPARE(result, 1);
        QCOMPARE(marks(), marked);
        QCOMPARE(log().first(), "messageEx|合并到图层|" + question + "|4|1|32");
    }

    void keepsItsModeForNewData()
    {
        open(kName, layers(true));
        m_tree = tree(layers(false));
        m_dialog->setData(m_tree, {});
        QCOMPARE(run([&] { press("okButton"); }), 1);
        QCOMPARE(marks(), (QList<int>{5, 0, 0, 0, 0}));
    }

private:
    QList<int> marks() const
    {
        QList<int> all;
        for (int i = 0; i < m_list->count(); ++i)
            all.append(record(i)->GetDataI("Modified") ? record(i)->GetDataI("CurLayer") : 0);
        return all;
    }
};

QTEST_MAIN(TestLaymrg)
#include "tst_laymrg.moc"
