#include "RxObjectImpl.h"
#include "coreservices.h"
#include "filefilters.h"
#include "files.h"
#include "hoststart.h"
#include "hostwindows.h"
#include "modaldriver.h"
#include "recordinghost.h"
#include "rows.h"
#include "settings.h"
#include "trees.h"
#include "vnservicedict.h"
#include "vnstrings.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextBrowser>

using vnsi::VnJsonPtr;

Q_DECLARE_METATYPE(OdString)

namespace {

/// A service that fails to make dialogs.
class ThrowingService : public vnsi::VnUiService
{
public:
    vnsi::VnUiModeDialogBasePtr createDialog(const OdString&) override
    {
        throw std::runtime_error("broken");
    }
};

VnJsonPtr showRename(const VnJsonPtr& keys)
{
    return vnsi::vnuiShowModelDialog(L"Dialog/CmdsUI", L"Dialog/CmdsUI/ReNameDlg", keys);
}

VnJsonPtr showFile(const QString& keys)
{
    return vnsi::vnuiShowModelDialog(L"Dialog/Common", L"FileDialogBox", tree(keys));
}

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void givesZeroWithoutADialog_data()
    {
        const Rows<OdString, OdString> row("service", "dialog");
        row("no service", L"No/Service", L"ColorDialog");
        row("no dialog service", L"Core/DocMgr", L"ColorDialog");
        row("no dialog", L"Dialog/Common", L"NoDialog");
        row("other service", L"Dialog/CmdsUI", L"ColorDialog");
    }

    void givesZeroWithoutADialog()
    {
        QFETCH(OdString, service);
        QFETCH(OdString, dialog);
        const VnJsonPtr keys = tree(R"({"result":1})");
        QVERIFY(vnsi::vnuiShowModelDialogEx(service, dialog, keys, {}, nullptr) == keys);
        QCOMPARE(keys->GetDataI("result", -1), 0);
        QCOMPARE(vnsi::vnuiShowModelDialog(service, dialog, {})->GetDataI("result", -1), 0);
    }

    void reportsWhatADialogThrows()
    {
        vnsi::vn_arbitDict_regservice(L"Test", OdRxObjectImpl<ThrowingService>::createObject());
        RecordingHost user;
        user.passThrough("X");
        QCOMPARE(vnsi::vnuiShowModelDialog(L"Test", L"X", {})->GetDataI("result", -1), 0);
        QCOMPARE(user.log().last(), "message|对话框“X”出错: broken|Quenlith|48");
        vnsi::vn_arbitDict_clearservice(L"Test");
    }

    void renames_data()
    {
        const Rows<QString, QString, bool, QString, QString> row(
            "keys", "typed", "accepts", "labels", "answers");
        row("typed over", R"({"DefaultName":"墙"})", "门", true, "重命名|名称(&N):|墙",
            R"({"DefaultName":"墙","NewName":"门","Success":true,)"
            R"("result":1})");
        row("kept", R"({"DefaultName":" a "})", "", true, "重命名|名称(&N):| a ",
            R"({"DefaultName":" a ","NewName":" a ","Success":true,)"
            R"("result":1})");
        row("cancelled", R"({"DefaultName":"a"})", "b", false, "重命名|名称(&N):|a",
            R"({"DefaultName":"a","Success":false,"result":2})");
        row("description, nothing checked", R"({"Tip":"说明(&D):"})", "<>|*", true,
            "说明|说明(&D):|", R"({"NewName":"<>|*","Success":true,"Tip":"说明(&D):","result":1})");
    }

    void renames()
    {
        QFETCH(QString, keys);
        QFETCH(QString, typed);
        QFETCH(bool, accepts);
        ModalDriver driver;
        driver.then([&](QDialog& dialog) {
            auto* const name = dialog.findChild<QLineEdit*>("name");
            const QString tip = dialog.findChild<QLabel*>("tip")->text();
            const QStringList seen{dialog.windowTitle(), tip, name->text()};
            QTEST(seen.join('|'), "labels");
            if (!typed.isEmpty())
                name->insert(typed); // Replaces the selected text.
            QTest::keyClick(name, accepts ? Qt::Key_Return : Qt::Key_Escape);
        });
        QTEST(toText(showRename(tree(keys))), "answers");
    }

    void splitsFilters_data()
    {
        const Rows<QString, QStringList, QString> rows("filter", "entries", "extension");
        const auto row = [&](const char* filter, const QStringList& entries,
                             const char* extension) { rows(filter, filter, entries, extension); };
        row("图层状态(*.las)", {"图层状态(*.las)"}, "las");
        row("A(*.a);;B(*.b)", {"A(*.a)", "B(*.b)"}, "a");
        row("A(*.a)  B(*.b *.c)", {"A(*.a)", "B(*.b *.c)"}, "a");
        row("A(*.a;*.b)|所有(*.*)", {"A(*.a *.b)", "所有(*.*)"}, "a");
        row("所有(*.*)", {"所有(*.*)"}, "");
        row("dwg dxf", {"*.dwg *.dxf"}, "dwg");
        row(" ;; | ", {}, "");
    }

    void splitsFilters()
    {
        QFETCH(QString, filter);
        const QStringList entries = host::splitFilters(filter);
        QTEST(entries, "entries");
        QTEST(host::firstExtension(entries.value(0)), "extension");
    }

    void readsFileKeys_data()
    {
        // The seen values are title, opening, several files, selected filter, suffix, and number of
        // filters.
        const Rows<QString, QString> row("keys", "seen");
        row("layer-state export",
            R"({"caption":"输出图层状态","Open":false,"MutiFile":false,)"
            "\"filter\":\"图层状态(*.las)\",\"defFilter\":\"图层状态(*.las)\"}",
            "输出图层状态|0|0|图层状态(*.las)|las|1");
        const QString drawings = QStringLiteral("\"filter\":\"图形(*.DWG);;标准(*.dws)\"");
        row("drawings to open", "{" + drawings + ",\"defFilter\":\"标准(*.dws)\"}",
            "选择文件|1|0|DXF 图形 (*.dxf)||4");
        row("standards to save", "{" + drawings + ",\"Open\":false}",
            "另存为|0|0|DXF 图形 (*.dxf)|dxf|3");
        row("states, or drawings that hold some",
            "{\"filter\":\"图形(*.dwt);;S(*.las)\",\"defFilter\":\"S(*.las)\"}",
            "选择文件|1|0|S(*.las)||4");
        row("title before caption", R"({"title":"t","caption":"c"})", "t|1|0|所有文件 (*)||1");
        row("several to open",
            "{\"title\":\"t\",\"Open\":true,\"MutiFile\":true,\"filter\":\"A(*.a);;B(*.b)\","
            "\"defFilter\":\"B(*.b)\"}",
            "t|1|1|B(*.b)||3");
        row("saved by flag", "{\"title\":\"t\",\"flags\":1,\"filter\":\"A(*.a)\"}",
            "t|0|0|A(*.a)|a|1");
        row("opened in spite of the flag",
            "{\"title\":\"t\",\"flags\":1,\"Open\":true,\"filter\":\"A(*.a)\"}", "t|1|0|A(*.a)||2");
        row("keys of other types", R"({"title":1,"filter":true,"dir":{},"Open":5})",
            "选择文件|1|0|所有文件 (*)||1");
    }

    void readsFileKeys()
    {
        QFETCH(QString, keys);
        QString seen;
        ModalDriver driver;
        driver.then([&](QDialog& dialog) {
            const auto& files = dynamic_cast<QFileDialog&>(dialog);
            seen = QStringList{files.windowTitle(),
                QString::number(files.acceptMode() == QFileDialog::AcceptOpen),
                QString::number(files.fileMode() == QFileDialog::ExistingFiles),
                files.selectedNameFilter(), files.defaultSuffix(),
                QString::number(files.nameFilters().size())}
                       .join('|');
            dialog.reject();
        });
        const VnJsonPtr answer = showFile(keys);
        QTEST(seen, "seen");
        QCOMPARE(answer->GetDataI("result"), 2);
        QVERIFY(!host::hasKey(answer, "filePath"));
    }

    void answersWithPaths()
    {
        const QTemporaryDir folder;
        const QString keys = QStringLiteral(R"({"dir":"%1","defawlt":"状态","Open":false,)"
                                            "\"filter\":\"S(*.las)\",\"filePaths\":[\"stale\"]}")
                                 .arg(folder.path());
        ModalDriver driver;
        driver.then([](QDialog& dialog) { dialog.accept(); });
        VnJsonPtr answer = showFile(keys);
        QCOMPARE(answer->GetDataI("result"), 1);
        const QString path = folder.filePath("状态.las");
        QCOMPARE(vnsi::vnutOdStringToQString(answer->GetDataSW("filePath")), path);
        QVERIFY(!host::hasKey(answer, "filePaths"));

        for (const char* name : {"a.dws", "b.dws"})
            writtenFile(folder.filePath(name), {});
        driver.then([](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText("\"a.dws\" \"b.dws\"");
            dialog.accept();
        });
        answer = showFile(
            QStringLiteral(R"({"dir":"%1","Open":true,"MutiFile":true})").arg(folder.path()));
        QCOMPARE(answer->GetDataJ("filePaths").ArrayCount(), 2);
        QCOMPARE(
            vnsi::vnutOdStringToQString(answer->GetDataSW("filePath")), folder.filePath("a.dws"));
    }

    void adoptsTheParent()
    {
        QWidget main, other;
        host::setMainWindow(&main);
        QVERIFY(vnsi::qt_windowHandle_to_widget(vnsi::vnuiCurTargetWindow()) == &main);
        QVERIFY(!vnsi::qt_windowHandle_to_widget(nullptr));
        ModalDriver driver;
        driver.then([&](QDialog& dialog) {
            QCOMPARE(dialog.parentWidget(), &other);
            QVERIFY(vnsi::qt_windowHandle_to_widget(vnsi::vnuiCurTargetWindow()) == &dialog);
            dialog.reject();
        });
        vnsi::vnuiShowModelDialogEx(L"Dialog/CmdsUI", L"Dialog/CmdsUI/ReNameDlg", {}, {}, &other);
        QVERIFY(vnsi::qt_windowHandle_to_widget(vnsi::vnuiCurTargetWindow()) == &main);
    }

    void helpBelongsToItsDialog()
    {
        ModalDriver driver;
        driver.then([](QDialog& dialog) {
            const auto server = vnsi::VnEditPrimitiveServer::cast(
                vnsi::vn_arbitDict_getservice(L"Core/EditPrimitiveServer").get());
            dialog.setObjectName("Dialog_CmdLaywalk");
            server->help(0);
            server->help(0);
            const QList<QDialog*> windows = dialog.findChildren<QDialog*>("helpWindow");
            QCOMPARE(windows.size(), 1);
            QCOMPARE(windows.first()->windowTitle(), "帮助 - 图层漫游");
            QVERIFY(!windows.first()->isModal());
            const auto* const text = windows.first()->findChild<QTextBrowser*>("helpText");
            QVERIFY(text->toPlainText().contains("通配符"));
            dialog.reject();
        });
        showRename({});
    }

    void keepsPlacesOnTheScreen()
    {
        const QTemporaryDir folder;
        host::setSettingsFolder(folder.path());
        const QRect placed(40, 50, 400, 200);
        QRect seen;
        ModalDriver driver;
        const auto show = [&](const QRect& next) {
            driver.then([&, next](QDialog& dialog) {
                seen = dialog.geometry();
                dialog.setGeometry(next);
                dialog.reject();
            });
            showRename({});
        };
        show(placed);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY((seen.center() - screen.center()).manhattanLength() < 4);
        show({5000, -300, 9000, 9000}); // Of a larger screen, say.
        QCOMPARE(seen, placed);
        show(placed);
        QVERIFY(screen.contains(seen));
        QVERIFY(seen.top() > screen.top()); // There is a title bar above.
        host::setSettingsFolder({});
    }

    void saysWhyAModuleCannotBeLoaded()
    {
        const QTemporaryDir folder;
        QVERIFY(m_host.loadModule(folder.filePath("none.so")).contains("文件不存在"));
        const QString broken = writtenFile(folder.filePath("broken.so"), "no library");
        QVERIFY(m_host.loadModule(broken).startsWith("无法加载模块“"));
        QVERIFY(!m_host.isModuleLoaded());
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
