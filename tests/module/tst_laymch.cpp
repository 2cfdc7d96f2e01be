#include "listfixture.h"

namespace {

const char kName[] = "Dialog/CmdLaymch";
const char kLayers[] = R"({"LayerList":[{"LayerName":"0"},{"LayerName":"Layer1"}]})";
const char kUnchanged[] = R"([{"LayerName":"0"},{"LayerName":"Layer1"}])";

} // namespace

class TestLaymch : public ListFixture
{
    Q_OBJECT

private slots:
    void choosesTarget_data()
    {
        // The answer is 0 when nothing is asked.
        const Rows<QString, int, QString, int, QString> row(
            "typed", "answer", "log", "result", "after");
        const QString unsupported = "message|\n名称 包含不支持的字符。\n\n\n不支持以下字符:\n  "
                                    "\\<>/\":;?*|,=`|图层-不支持的字符|0";
        const QString empty = "message|\n图层名至少必须包含一个字符。|图层名无效|0";
        const QString create =
            "messageEx|是否创建图层？|\n图层\"新%1\"不存在。\n是否创建它？|4|1|32";
        row("listed", "Layer1", 0, "", 1,
            R"([{"LayerName":"0"},{"CurLayer":4,"LayerName":"Layer1",)"
            R"("Modified":1}])");
        row("listed in other case", "LAYER1", 0, "", 1, kUnchanged);
        row("new", "新%1", 6, create, 1,
            R"([{"LayerName":"0"},{"CurLayer":3,"LayerName":"Layer1",)"
            R"("Modified":1,"NewLayer":"新%1"}])");
        row("new, declined", "新%1", 7, create, 2, kUnchanged);
        row("empty", "", 0, empty, 2, kUnchanged);
        row("only blanks", " \t ", 0, empty, 2, kUnchanged);
        row("blank inside", "my layer", 0, unsupported, 2, kUnchanged);
        row("blank around a listed name", " Layer1", 0, unsupported, 2, kUnchanged);
        for (const QChar c : QStringLiteral("\\<>/\":;?*|,=`"))
            row(qPrintable("forbidden " + QString(c)), c, 0, unsupported, 2, kUnchanged);
        row("control character for a new layer", "x\x01", 0, unsupported, 2, kUnchanged);
        row("too long for a new layer", QString(256, 'x'), 0,
            "message|\n图层名最多只能包含 255 个字符。|图层名无效|0", 2, kUnchanged);
    }

    void choosesTarget()
    {
        QFETCH(QString, typed);
        QFETCH(int, answer);
        open(kName, kLayers);
        if (answer)
            m_host->answer(answer);
        const int result = run([&] {
            edit().setText(typed);
            press("okButton");
        });
        QTEST(result, "result");
        QTEST(log().join('#'), "log");
        QTEST(listText(), "after");
        QCOMPARE(m_staysOpen, result == 2);
    }

    void copiesListedName()
    {
        open(kName, kLayers);
        QCOMPARE(run([&] {
            QCOMPARE(edit().text(), "0");
            QTest::keyClick(m_list, Qt::Key_Down);
            QCOMPARE(edit().text(), "Layer1");
            edit().setText("other");
            select({1}); // Clicking the current item copies it again.
            QCOMPARE(edit().text(), "Layer1");
            press("helpButton");
            doubleClick(0);
        }),
            1);
        QCOMPARE(log(), QStringList{"help|0"}); // No request is sent.
        QCOMPARE(record(0)->GetDataI("CurLayer"), 4);
    }

    void createsWithoutAnyRecord()
    {
        open(kName, R"({"LayerList":[]})");
        m_host->answer(6);
        QCOMPARE(run([&] {
            edit().setText("x");
            press("okButton");
        }),
            1);
        QCOMPARE(listText(), "[]");
    }
};

QTEST_MAIN(TestLaymch)
#include "tst_laymch.moc"
