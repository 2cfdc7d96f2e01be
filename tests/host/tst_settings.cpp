#include "files.h"
#include "rows.h"
#include "settings.h"
#include "sysvars.h"
#include "trees.h"
#include "vndialogs.h"

#include <QTemporaryDir>

Q_DECLARE_METATYPE(OdString)

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        host::setSettingsFolder(m_folder->path());
    }

    void cleanup() { host::setSettingsFolder({}); }

    void keepsWhatADialogWrote()
    {
        const vnsi::VnJsonPtr section = vnsi::vn_user_config(L"table_dialog");
        QVERIFY(section == vnsi::vn_user_config(L"table_dialog"));
        section->SetDataB("RecoverBoxChecked", true);
        QCOMPARE(contentOf(path("table_dialog.json")), QByteArray("unreadable"));
        vnsi::vnuiShowModelDialog(L"no such service", L"dialog", {});
        QCOMPARE(contentOf(path("table_dialog.json")), QByteArray(R"({"RecoverBoxChecked":true})"));

        host::setSettingsFolder(m_folder->path());
        QVERIFY(vnsi::vn_user_config(L"table_dialog")->GetDataB("RecoverBoxChecked"));
        // An unchanged section does not touch its file.
        writtenFile(path("table_dialog.json"), "{}");
        QVERIFY(host::saveSettings());
        QCOMPARE(contentOf(path("table_dialog.json")), QByteArray("{}"));
    }

    void setsUnreadableFilesAside_data()
    {
        const Rows<QByteArray> row("bytes");
        row("cut off", R"({"a":1)");
        row("empty", "");
        row("no object", "[1]");
        row("binary", QByteArray("\x00\xFF\xFE", 3));
    }

    void setsUnreadableFilesAside()
    {
        QFETCH(QByteArray, bytes);
        writtenFile(path("s.json.bad"), "older");
        writtenFile(path("s.json"), bytes);
        const vnsi::VnJsonPtr section = vnsi::vn_user_config(L"s");
        QCOMPARE(toText(section), "{}");
        QCOMPARE(contentOf(path("s.json.bad")), bytes);
        section->SetDataI("a", 2);
        QVERIFY(host::saveSettings());
        QCOMPARE(contentOf(path("s.json")), QByteArray(R"({"a":2})"));
        QCOMPARE(contentOf(path("s.json.bad")), bytes);
    }

    void staysInItsFolder_data()
    {
        const Rows<OdString, OdString> row("first", "second");
        row("parents", L"../../x", L"..");
        row("folders", L"a/b", L"a\\b");
        row("Chinese and empty", L"设置", OdString());
        const std::wstring endless(5000, L'x');
        row("endless", endless.c_str(), (endless + L'y').c_str());
        row("escapes", L"a%2Eb", L"a.b");
    }

    void staysInItsFolder()
    {
        QFETCH(OdString, first);
        QFETCH(OdString, second);
        const QStringList before = QDir(m_folder->path() + "/..").entryList();
        vnsi::vn_user_config(first)->SetDataI("n", 1);
        vnsi::vn_user_config(second)->SetDataI("n", 2);
        QVERIFY(host::saveSettings());
        QCOMPARE(QDir(m_folder->path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                     .size(),
            2);
        host::setSettingsFolder(m_folder->path());
        QCOMPARE(vnsi::vn_user_config(first)->GetDataI("n"), 1);
        QCOMPARE(vnsi::vn_user_config(second)->GetDataI("n"), 2);
    }

    void refusesToWriteWhereItCannot()
    {
        writtenFile(path("file"), "x");
        host::setSettingsFolder(path("file"));
        vnsi::vn_user_config(L"s")->SetDataI("a", 1);
        QVERIFY(!host::saveSettings());
        QCOMPARE(contentOf(path("file")), QByteArray("x"));
    }

    void knowsSystemVariables()
    {
        QCOMPARE(vnsi::getVar(L"tilemode"), OdInt16(1));
        QCOMPARE(vnsi::getVar(L"NOSUCH"), OdInt16(0));
        host::setVar(L"TileMode", 0);
        QCOMPARE(vnsi::getVar(L"TILEMODE"), OdInt16(0));
        host::setVar(L"TILEMODE", 1);
    }

private:
    QString path(const char* name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
