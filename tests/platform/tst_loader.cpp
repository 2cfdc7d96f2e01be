#include "OdAnsiString.h"
#include "platformextras.h"
#include "rows.h"

class TestLoader : public QObject
{
    Q_OBJECT

private slots:
    void refusesWithCause_data()
    {
        const Rows<QString, QString> row("path", "cause");
        row("no such file", "/nowhere/libnone.so", "/nowhere/libnone.so");
        row("no entry points", NOT_A_MODULE, "odrxGetAPIVersion");
        row("another release", OLD_MODULE, "another release");
    }

    void refusesWithCause()
    {
        QFETCH(QString, path);
        QFETCH(QString, cause);
        try {
            odrxLoadModule(OdString(path.toStdWString().c_str()));
            QFAIL("it was loaded");
        } catch (const OdError& error) {
            QCOMPARE(error.code(), eCannotLoadModule);
            QVERIFY2(QString::fromUtf8(error.what()).contains(cause), error.what());
        }
    }

    void unloadsNothing() { odrxUnloadModule({}); }
};

QTEST_APPLESS_MAIN(TestLoader)
#include "tst_loader.moc"
