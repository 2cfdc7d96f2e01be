#include "modulefixture.h"
#include "recordinghost.h"
#include "resbuf.h"
#include "rows.h"
#include "trees.h"
#include "vnqtfiledialog.h"
#include "vnstrings.h"

#include <QLibrary>

#include <memory>

using namespace vnsi;

namespace {

/// A function of the module's library, looked up in the same way as by command code of any host.
template <class Function>
Function* exported(const char* symbol)
{
    QLibrary library(ModuleFixture::modulePath());
    if (const auto found = library.resolve(symbol))
        return reinterpret_cast<Function*>(found);
    qFatal("%s: %s", symbol, qPrintable(library.errorString()));
}

} // namespace

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
        auto* const ask = exported<decltype(vnqtGetFileName)>(
            "_ZN4vnsi15vnqtGetFileNameERK8OdStringS2_S2_iRS0_P7QWidget");
        QCOMPARE(ask(L"标题", L"plan", L"图 (*.dws;*.dwg;*.dwt)", 5, path, nullptr), result);
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
        auto* const ask = exported<decltype(vnqtGetNavFileName)>(
            "_ZN4vnsi18vnqtGetNavFileNameERK8OdStringS2_S2_S2_S2_iRPNS_8VnResbufEP7QWidget");
        QCOMPARE(ask(L"t", L"d", L"c", L"n", L"*.a;*.b", flags, list, nullptr), result);
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
