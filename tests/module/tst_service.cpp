#include "modulefixture.h"
#include "vnservicedict.h"
#include "vnstrings.h"

#include <QtTest>

#include <dlfcn.h>

using namespace vnsi;

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void makesDialogOfName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("className");
        QTest::newRow("manager") << "Dialog/CmdLayer" << QByteArray("VnQtUiDynLayerCmdImpl");
        QTest::newRow("lower case") << "dialog/cmdlayer" << QByteArray("VnQtUiDynLayerCmdImpl");
        QTest::newRow("delete") << "Dialog/CmdLaydel" << QByteArray("VnQtLaydelLayerDlg");
        QTest::newRow("change to") << "Dialog/CmdLaymch" << QByteArray("VnQtLaymchLayerDlg");
        QTest::newRow("merge") << "DIALOG/CMDLAYMRG" << QByteArray("VnQtLaymrgLayerDlg");
        // Dialogs that start like another's name.
        QTest::newRow("states") << "Dialog/CmdLayerState"
                                << QByteArray("VnQtUiDynLayerStateCmdImpl");
        QTest::newRow("new state")
            << "Dialog/CmdLayerStateNew" << QByteArray("VnQtNewLayerStateDlg");
        QTest::newRow("edit state")
            << "Dialog/CmdLayerStateEdit" << QByteArray("VnQtEditLayerStateDlg");
        QTest::newRow("add layers")
            << "Dialog/CmdLayerStateAddNewLayer" << QByteArray("VnQtAddNewLayerDlg");
        QTest::newRow("walk") << "Dialog/CmdLaywalk" << QByteArray("VnQtLayWalkDlg");
        QTest::newRow("verify") << "Dialog/CmdLaywalk/Verify" << QByteArray("VnQtLayWalkVerifyDlg");
        QTest::newRow("translator") << "Dialog/CmdLaytrans" << QByteArray("VnQtUiLaytransCmd");
        QTest::newRow("translator layer")
            << "Dialog/CmdLaytransNewEdit" << QByteArray("VnQtLaytransNewEditWgt");
        QTest::newRow("translator settings")
            << "Dialog/CmdLaytransSetting" << QByteArray("VnQtLaytransSettingWgt");
        QTest::newRow("unknown") << "Dialog/CmdLayerX" << QByteArray();
        QTest::newRow("blank after") << "Dialog/CmdLayer " << QByteArray();
        QTest::newRow("backslash") << "Dialog\\CmdLayer" << QByteArray();
        QTest::newRow("empty") << "" << QByteArray();
    }

    void makesDialogOfName()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, className);
        const host::WatchedDialog dialog = m_module.createDialog(name, {});
        QCOMPARE(!dialog.isNull(), !className.isEmpty());
        if (dialog.isNull())
            return;
        QCOMPARE(QByteArray(dialog.window()->metaObject()->className()), "vnsi::" + className);
        QCOMPARE(dialog.window()->objectName(), QString(name).replace('/', '_'));
        QCOMPARE(dialog->numRefs(), 1L);
        const host::WatchedDialog another = m_module.createDialog(name, {});
        QVERIFY(another.window() != dialog.window());
    }

    void hasOneModuleObjectOfItsRelease()
    {
        void* const library =
            dlopen(ModuleFixture::modulePath().toLocal8Bit().constData(), RTLD_NOW | RTLD_NOLOAD);
        QVERIFY(library);
        const auto create = reinterpret_cast<OdRxModule* (*)(void*, const OdString&)>(
            dlsym(library, "odrxCreateModuleObject"));
        const auto version =
            reinterpret_cast<void (*)(int&, int&, int&, int&)>(dlsym(library, "odrxGetAPIVersion"));
        OdRxModule* const module = create(nullptr, L"again");
        QCOMPARE(create(library, L"once more"), module);
        QVERIFY(module->moduleName() != OdString(L"again")); // The loader's call came first.
        int numbers[] = {-1, -1, -1, -1};
        version(numbers[0], numbers[1], numbers[2], numbers[3]);
        QCOMPARE(QList<int>(std::begin(numbers), std::end(numbers)), (QList<int>{21, 12, 0, 0}));

        module->initApp(); // A second time it only registers again.
        QVERIFY(!vn_arbitDict_getservice(L"Dialog/CmdLayer").isNull());
        const OdRxObjectPtr service = vn_arbitDict_getservice(L"Dialog/CmdLayer");
        QCOMPARE(service->numRefs(), 2L); // The dictionary's and this one.
        module->uninitApp();
        QVERIFY(vn_arbitDict_getservice(L"Dialog/CmdLayer").isNull());
        QCOMPARE(service->numRefs(), 1L);
        module->initApp();
        dlclose(library);
    }

private:
    ModuleFixture m_module;
};

QTEST_MAIN(TestService)

#include "tst_service.moc"
