#include "contract.h"
#include "dialogpresser.h"
#include "dialogsamples.h"
#include "otherhost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLibrary>
#include <QListWidget>
#include <QThread>
#include <QTimer>
#include <QtTest>

using namespace otherhost;

namespace {

OtherHost& host()
{
    return OtherHost::instance();
}

/// An action of a user in a dialog: its index, the choice in what it opens, and what the dialog
/// then asks.
struct Act
{
    std::size_t place;
    int choice;
    QStringList asked = {};
    bool isFirstOfKind = true; ///< No earlier action asks the same.
};

constexpr int kMostChoices = 13;

/// Records exceptions that leave an event handler, which the event loop of a host would not
/// survive.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            host().fault("an exception left the module");
            return false;
        }
    }
};

/// Makes a different choice each time, beginning with `next`, and remembers how many there were at
/// first.
struct Chooser
{
    int next;
    int first = 0;

    int operator()(int count)
    {
        first = first ? first : count;
        return next++ % count;
    }
};

} // namespace

Q_DECLARE_METATYPE(const Mischief*)

/// Tests the module in an independently written host that does everything the contract allows.
class TestOtherHost : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLibrary library(QStringLiteral(OTHER_MODULE));
        using Create = OdRxModule*(void*, const OdString&);
        auto* const create = reinterpret_cast<Create*>(library.resolve("odrxCreateModuleObject"));
        QVERIFY2(create, qPrintable(library.errorString()));
        m_module = create(nullptr, L"other");
        m_module->initApp();
    }

    void keepsContract_data()
    {
        QTest::addColumn<DialogSample>("sample");
        QTest::addColumn<const Mischief*>("mischief");
        for (const DialogSample& sample : dialogSamples()) {
            for (const Mischief& mischief : mischiefs()) {
                if (canShow(sample, mischief))
                    QTest::addRow("%s %s", qPrintable(sample.name), mischief.name)
                        << sample << &mischief;
            }
        }
    }

    /// Performs every action that a user can do in a dialog. When the command or the host does not
    /// answer as agreed, each action gets a new dialog.
    void keepsContract()
    {
        QFETCH(DialogSample, sample);
        QFETCH(const Mischief*, mischief);
        std::vector<Act> acts;
        for (const Act& act : actsOf(sample)) {
            if (matters(act, *mischief))
                acts.push_back(act);
        }
        QVERIFY(!acts.empty() || mischief->questions); // Some dialogs have no actions.
        const bool isAlone = mischief->command || mischief->questions;
        for (std::size_t next = 0; next < acts.size();) {
            inDialog(sample, mischief, [&] {
                do
                    perform(acts[next++]);
                while (
                    !isAlone && next < acts.size() && host().window && host().window->isVisible());
            });
        }
        const QString faults = std::exchange(host().faults, {}).join('\n');
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    void seesEverything()
    {
        for (const contract::Request& request : contract::requests()) {
            const QString name =
                QStringLiteral("%1 request %2").arg(request.dialog).arg(request.code);
            QVERIFY2(host().seen.contains(name), qPrintable(name));
        }
    }

    void cleanupTestCase() { m_module->uninitApp(); }

private:
    static bool canShow(const DialogSample& sample, const Mischief& mischief)
    {
        return sample.tree.contains(mischief.key) &&
               (sample.asksItsCommand || !mischief.command || mischief.questions);
    }

    /// Whether a mischief can affect an action.
    static bool matters(const Act& act, const Mischief& mischief)
    {
        const bool asksCommand = std::any_of(act.asked.begin(), act.asked.end(),
            [](const QString& asked) { return asked.contains(" request "); });
        if (mischief.questions)
            return act.isFirstOfKind && !act.asked.isEmpty();
        if (mischief.command)
            return act.isFirstOfKind && asksCommand;
        return act.isFirstOfKind || (mischief.freedoms & kEverything);
    }

    /// Opens the dialog as a host does, lets it be used and closes it.
    void inDialog(
        const DialogSample& sample, const Mischief* mischief, const std::function<void()>& use)
    {
        OtherHost& now = host();
        now.mischief = mischief;
        now.dialogName = sample.name;
        const auto service =
            vnsi::VnUiService::cast(vnsi::vn_arbitDict_getservice(L"Dialog/CmdLayer").get());
        now.dialog = service->dialogOf(vnsi::vnutQStringToOdString(sample.name));
        now.root = now.may(kNoTree) ? vnsi::VnJsonPtr() : treeOf(sample.tree);
        now.dialog->setData(
            now.root, now.may(kNoCommand) ? OdRxObjectPtr() : makeCommand(now.may(kDumbCommand)));
        int times = 0;
        QTimer turn;
        connect(&turn, &QTimer::timeout, this, [&] {
            now.window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!now.window || ++times > 9)
                qFatal("%s cannot be closed", qPrintable(sample.name));
            turn.stop();
            now.mischief = nullptr; // Only what happens between counts.
            if (times == 1) {
                prepare();
                now.mischief = mischief;
                use();
                now.mischief = nullptr;
            }
            if (now.window)
                now.window->close(); // The dialog may ask first, and some dialogs are shown again.
            turn.start();
        });
        turn.start();
        const int result = now.dialog.get()->doModal();
        if (result != 1 && result != 2)
            now.fault(QStringLiteral("ends with %1").arg(result));
        turn.stop();
        now.mischief = mischief;
        release();
        if (now.window)
            now.fault("leaves its window");
        delete now.window;
        now.mischief = nullptr;
        now.root = {};
    }

    void release()
    {
        if (!host().may(kOtherThread)) {
            host().dialog = nullptr;
            return;
        }
        QEventLoop loop;
        QThread* const thread = QThread::create([] { host().dialog = nullptr; });
        connect(thread, &QThread::finished, &loop, &QEventLoop::quit);
        thread->start();
        loop.exec();
        thread->wait();
        delete thread;
    }

    /// Brings the dialog into a state in which much can be done.
    static void prepare()
    {
        for (const char* name : {"loadButton", "mapButton"}) {
            for (auto* list : host().window->findChildren<QListWidget*>())
                list->setCurrentRow(0);
            if (auto* button = host().window->findChild<QAbstractButton*>(name))
                button->click();
        }
        for (auto* view : host().window->findChildren<QAbstractItemView*>())
            view->setCurrentIndex(view->model()->index(0, 0));
    }

    static Chooser perform(const Act& act)
    {
        Chooser chooser{act.choice};
        const PopupAnswerer popups([&](int count) { return chooser(count); });
        const auto all = actsIn(*host().window);
        if (act.place < all.size())
            all[act.place]();
        else
            host().window->close();
        QApplication::processEvents(); // Menus do not wait for an answer.
        return chooser;
    }

    /// The actions that are possible in a dialog, found out with a well-behaved host.
    const std::vector<Act>& actsOf(const DialogSample& sample)
    {
        std::vector<Act>& acts = m_acts[sample.name + sample.tree];
        if (!acts.empty())
            return acts;
        static const Mischief none{"none"};
        std::size_t count = 1;
        for (std::size_t place = 0; place <= count; ++place) {
            for (int choice = 0, choices = 1; choice < std::min(choices, kMostChoices); ++choice) {
                inDialog(sample, &none, [&] {
                    count = actsIn(*host().window).size();
                    host().asked.clear();
                    choices = std::max(choices, perform({place, choice}).first);
                    const auto same = [](const Act& act) { return act.asked == host().asked; };
                    const bool isNew = std::none_of(acts.begin(), acts.end(), same);
                    acts.push_back({place, choice, host().asked, isNew});
                });
            }
        }
        return acts;
    }

    OdRxModule* m_module = nullptr;
    QHash<QString, std::vector<Act>> m_acts;
};

int main(int argc, char** argv)
{
    Application application(argc, argv);
    TestOtherHost test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_otherhost.moc"
