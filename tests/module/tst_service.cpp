#include "modulefixture.h"
#include "rows.h"
#include "vnservicedict.h"
#include "vnstrings.h"

#include <dlfcn.h>

using namespace vnsi;

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void makesDialogOfName_data()
    {
        const Rows<QByteArray> row("className");
        row("Dialog/CmdLayer", "VnQtUiDynLayerCmdImpl");
        row("dialog/cmdlayer", "VnQtUiDynLayerCmdImpl");
        row("Dialog/CmdLaydel", "VnQtLaydelLayerDlg");
        row("Dialog/CmdLaymch", "VnQtLaymchLayerDlg");
        row("DIALOG/CMDLAYMRG", "VnQtLaymrgLayerDlg");
        // Names that begin like the name of another dialog.
        row("Dialog/CmdLayerState", "VnQtUiDynLayerStateCmdImpl");
        row("Dialog/CmdLayerStateNew", "VnQtNewLayerStateDlg");
        row("Dialog/CmdLayerStateEdit", "VnQtEditLayerStateDlg");
        row("Dialog/CmdLayerStateAddNewLayer", "VnQtAddNewLayerDlg");
        row("Dialog/CmdLaywalk", "VnQtLayWalkDlg");
        row("Dialog/CmdLaywalk/Verify", "VnQtLayWalkVerifyDlg");
        row("Dialog/CmdLaytrans", "VnQtUiLaytransCmd");
        row("Dialog/CmdLaytransNewEdit", "VnQtLaytransNewEditWgt");
        row("Dialog/CmdLaytransSetting", "VnQtLaytransSettingWgt");
        for (const char* unknown : {"Dialog/CmdLayerX", "Dialog/CmdLayer ", "Dialog\\CmdLayer", ""})
            row(unknown, "");
    }

    void makesDialogOfName()
    {
        const QString name = QTest::currentDataTag();
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
        QVERIFY(module->moduleName() != OdString(L"again")); // The first call was the loader's.
        int numbers[] = {-1, -1, -1, -1};
        version(numbers[0], numbers[1], numbers[2], numbers[3]);
        QCOMPARE(QList<int>(std::begin(numbers), std::end(numbers)), (QList<int>{21, 12, 0, 0}));

        module->initApp(); // A second call only registers the service again.
        QVERIFY(!vn_arbitDict_getservice(L"Dialog/CmdLayer").isNull());
        const OdRxObjectPtr service = vn_arbitDict_getservice(L"Dialog/CmdLayer");
        QCOMPARE(service->numRefs(), 2L); // One reference of the dictionary and this one.
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
