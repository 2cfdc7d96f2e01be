#include "recordinghost.h"
#include "rows.h"
#include "trees.h"
#include "vnqtfiledialog.h"
#include "vnstrings.h"

#include <QtTest>

#include <memory>

using namespace vnsi;

class TestFileDialog : public QObject
{
    Q_OBJECT

private slots:
    void asksForOneName_data()
    {
        const Rows<int, QString, QString> row("result", "answer", "path");
        row("chosen", 1, R"({"filePath":"/a/层.las"})", "/a/层.las");
        row("chosen without a path", 1, "{}", "");
        row("cancelled, though a path is there", 2, R"({"filePath":"/a/b"})", "untouched");
        row("no such dialog", 0, "{}", "untouched");
    }

    void asksForOneName()
    {
        QFETCH(int, result);
        QFETCH(QString, answer);
        RecordingHost host;
        host.answer(result, answer);
        OdString path(L"untouched");
        QCOMPARE(vnqtGetFileName(L"标题", L"plan", L"图 (*.dws;*.dwg;*.dwt)", 5, path), result);
        QTEST(vnutOdStringToQString(path), "path");
        QCOMPARE(
            host.log(), (QStringList{"dialog|Dialog/Common|FileDialogBox|{\"defawlt\":\"plan\","
                                     "\"filter\":\"图 (*.dws *.dwg *.dwt)\",\"flags\":5,"
                                     "\"title\":\"标题\"}"}));
    }

    void navigates_data()
    {
        const Rows<int, QString, int, QString, QStringList> row(
            "flags", "expected", "result", "answer", "paths");
        const QString several = R"({"filePath":"/a","filePaths":["/a","/b"]})";
        row("open one", 0, R"("MutiFile":false,"Open":true)", 1, several, {"/a"});
        row("save", 1, R"("MutiFile":false,"Open":false)", 1, several, {"/a"});
        row("several", 0x1000, R"("MutiFile":true,"Open":true)", 1, several, {"/a", "/b"});
        row("several allowed, one given", 0x1003, R"("MutiFile":true,"Open":false)", 1,
            R"({"filePath":"/a"})", {"/a"});
        row("chosen, without a path", 0, R"("MutiFile":false,"Open":true)", 1, "{}", {});
        row("several, none of them with a path", 0x1000, R"("MutiFile":true,"Open":true)", 1,
            R"({"filePaths":["",{}]})", {});
        row("other bits", 0x2ffe, R"("MutiFile":false,"Open":true)", 2, several, {});
    }

    void navigates()
    {
        QFETCH(int, flags);
        QFETCH(QString, expected);
        QFETCH(int, result);
        QFETCH(QString, answer);
        RecordingHost host;
        host.answer(result, answer);
        VnResbuf* list = nullptr;
        QCOMPARE(vnqtGetNavFileName(L"t", L"d", L"c", L"n", L"*.a;*.b", flags, list), result);
        const std::unique_ptr<VnResbuf, decltype(&vnsiutRelRb)> owned(list, vnsiutRelRb);
        QStringList paths;
        for (const VnResbuf* node = list; node; node = node->rbnext) {
            QCOMPARE(node->restype, 5005);
            paths.append(QString::fromWCharArray(node->rstring));
        }
        QTEST(paths, "paths");
        QCOMPARE(host.log(), QStringList{"dialog|Dialog/Common|FileNavDialogBox|{" + expected +
                                         QString(R"(,"caption":"c","defawlt":"d","dlgname":"n",)"
                                                 R"("filter":"*.a *.b","flags":%1,"title":"t"})")
                                             .arg(flags)});
    }
};

QTEST_MAIN(TestFileDialog)

#include "tst_filedialog.moc"
