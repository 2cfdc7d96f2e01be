#include "hoststart.h"
#include "modaldriver.h"
#include "platformextras.h"
#include "requests.h"
#include "rows.h"
#include "vornqt.h"

#include <QThread>

#include <memory>

using namespace vnsi;

namespace {

int built = 0;
QPointer<QDialog> lastBuilt;
bool canBuild = true;
QThread* deletedOn = nullptr;
QString assertion;

class Probe : public VnQtModeDialogImpl<Probe, QDialog>
{
public:
    using VnQtModeDialogImpl::VnQtModeDialogImpl;
    ~Probe() override { deletedOn = QThread::currentThread(); }
    bool initDialog() override
    {
        ++built;
        lastBuilt = this;
        return canBuild;
    }
    void onDataSet(VnJsonPtr data) override { data->SetDataB("seen", true); }
    VnQtUIModeDialogBase& host() { return *wrapper(); }
};

class OwnEnding : public Probe
{
public:
    using Probe::Probe;
    void endDialog(int code) override { done(code + 10); }
};

template <class T>
class EndingWrapper : public VnQtModeDialog<T>
{
public:
    void endDialog(int code) override { VnQtModeDialog<T>::endDialog(code + 20); }
};

using WrapperPtr = OdSmartPtr<VnQtUIModeDialogBase>;

template <class Wrapper = VnQtModeDialog<Probe>>
WrapperPtr makeUnbuilt()
{
    return VnQtRxObjectImpl<Wrapper, Wrapper>::createObject();
}

template <class Wrapper = VnQtModeDialog<Probe>>
WrapperPtr make()
{
    WrapperPtr made = makeUnbuilt<Wrapper>();
    made->createDialog(nullptr, 0, "probe");
    return made;
}

} // namespace

Q_DECLARE_METATYPE(ModalDriver::Step)

class TestModalHost : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        built = 0;
        canBuild = true;
        deletedOn = nullptr;
    }

    void endsWithResult_data()
    {
        const auto own = [](QDialog& dialog) {
            static_cast<Probe&>(dialog).host().resultData()->SetDataI("result", 3);
        };
        const Rows<ModalDriver::Step, int> row("step", "result");
        const auto escape = [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); };
        const auto ownAndAccept = [own](QDialog& d) {
            own(d);
            d.accept();
        };
        const auto ownAndClose = [own](QDialog& d) {
            own(d);
            d.close();
        };
        const auto end = [](QDialog& d) { static_cast<Probe&>(d).endDialog(1); };
        row("close box", &QWidget::close, 2);
        row("escape", escape, 2);
        row("accept", &QDialog::accept, 1);
        row("own result, then accept", ownAndAccept, 3);
        row("own result, then close box", ownAndClose, 3);
        row(
            "another exit code", [](QDialog& d) { d.done(9); }, -1);
        row("ended though rejected", end, 1);
    }

    void endsWithResult()
    {
        QFETCH(ModalDriver::Step, step);
        const auto dialog = make();
        for (int run = 0; run < 2; ++run) { // Remainders of the first run must not count.
            ModalDriver user;
            user.then(step);
            QTEST(dialog->doModal(), "result");
        }
    }

    void endsTheWayThatIsOverridden()
    {
        ModalDriver user;
        const auto end = [](QDialog& dialog) { static_cast<Probe&>(dialog).endDialog(1); };
        user.then(end);
        user.then(end);
        QCOMPARE(make<EndingWrapper<Probe>>()->doModal(), 21);
        // The dialog's own ending takes precedence over the exit code 11.
        QCOMPARE(make<EndingWrapper<OwnEnding>>()->doModal(), -1);
    }

    void showsAgain()
    {
        const auto dialog = make();
        ModalDriver user;
        const auto again = [](QDialog& d) {
            static_cast<Probe&>(d).host().reshow();
            d.accept();
        };
        user.then(again);
        user.then(again);
        user.then([](QDialog& d) { d.reject(); });
        QCOMPARE(dialog->doModal(), 2);
    }

    void buildsOnce()
    {
        const WrapperPtr dialog = makeUnbuilt();
        QCOMPARE(dialog->doModal(), -1); // There is no window yet.
        QCOMPARE(dialog->setData(ElementValue::createObject(2), {}), 0);
        QVERIFY(dialog->createDialog(nullptr, 0, "first"));
        const QPointer<QDialog> window = lastBuilt;
        QVERIFY(dialog->createDialog(nullptr, 0, "second"));
        QCOMPARE(built, 1);
        QCOMPARE(window->objectName(), "first");
        QVERIFY(!window->isVisible());

        const VnJsonPtr data = ElementValue::createObject(2);
        QCOMPARE(dialog->setData(data, {}), 1);
        QVERIFY(data->GetDataB("seen"));
    }

    void failsWhenItCannotBeBuilt()
    {
        canBuild = false;
        const WrapperPtr dialog = makeUnbuilt();
        QVERIFY(!dialog->createDialog(nullptr, 0, nullptr));
    }

    void survivesItsParent()
    {
        auto parent = std::make_unique<QWidget>();
        WrapperPtr dialog = makeUnbuilt();
        dialog->createDialog(parent.get(), 0, "child");
        parent.reset();
        QVERIFY(!lastBuilt);
        QCOMPARE(dialog->doModal(), -1);
        dialog = {};
    }

    void isDeletedOnUiThread()
    {
        auto dialog = make();
        auto second = dialog;
        dialog = {};
        QVERIFY(!deletedOn);
        second = {};
        QCOMPARE(deletedOn, QThread::currentThread());
    }

    void isDeletedOnUiThreadFromCommand()
    {
        const host::CommandScope command;
        VnUiModeDialogBase* const dialog = make().detach();
        bool isGoneAfterwards = false;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            dialog->release();
            isGoneAfterwards = deletedOn; // The release waits for the deletion.
        }));
        thread->start();
        QTRY_VERIFY(thread->isFinished());
        QVERIFY(isGoneAfterwards);
        QCOMPARE(deletedOn, QThread::currentThread());
        QCOMPARE(host::markedScraps(), 0);
    }

    void isLeftAliveWithoutCommand()
    {
        VnUiModeDialogBase* const dialog = make().detach();
        const std::unique_ptr<QThread> thread(QThread::create([&] { dialog->release(); }));
        thread->start();
        QVERIFY(thread->wait());
        QCoreApplication::processEvents();
        QVERIFY(!deletedOn);

        odSetAssertHandler([](const char* expression, const char* file, int) {
            assertion = QString::fromUtf8(expression) + '@' + QString::fromUtf8(file);
        });
        dialog->release();
        odSetAssertHandler(nullptr);
        QCOMPARE(assertion, "(m_nRefCounter > 0)@include/qt/vornqt.h");
        QVERIFY(!deletedOn);
        delete dialog;
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestModalHost)
#include "tst_modalhost.moc"
