#include "RxObjectImpl.h"
#include "dialogpresser.h"
#include "dialogsamples.h"
#include "hostextras.h"
#include "hostfrontend.h"
#include "modulefixture.h"
#include "trees.h"
#include "valuetree.h"
#include "vnstrings.h"

#include <QDialog>
#include <QPointer>
#include <QtTest>

#include <stdexcept>

using namespace vnsi;

namespace {

/// Something a command, or a host that answers for another dialog, could do to a dialog.
using Behaviour = std::function<void(const VnJsonPtr& root, QWidget* window)>;

constexpr int kDeepest = 2;
int depth = 0; ///< Of behaviours that make the dialog ask again.

void removeLists(const VnJsonPtr& root)
{
    for (const VnJsonPtr& node : containersIn(root)) {
        for (const QString& key : keysOf(node)) {
            if (node->GetDataJ(key.toUtf8().constData()).ArrayCount() > 0)
                hostextras::removeKey(*node, key.toUtf8().constData());
        }
    }
}

template <class Change>
void changeLists(const VnJsonPtr& root, Change change)
{
    for (const VnJsonPtr& node : containersIn(root)) {
        if (host::isArray(node))
            change(node);
    }
}

template <class Change>
void changeMembers(const VnJsonPtr& root, Change change)
{
    for (const VnJsonPtr& node : containersIn(root)) {
        for (const QString& key : keysOf(node))
            change(*node, key.toUtf8().constData());
    }
}

void pressEverything(QWidget* shown)
{
    if (!shown || depth >= kDeepest)
        return;
    ++depth;
    const QPointer<QWidget> window(shown);
    const std::size_t count = actsIn(*window).size();
    for (std::size_t i = 0; i < count && window; i += 3) {
        const auto acts = actsIn(*window);
        if (i < acts.size())
            acts[i]();
    }
    --depth;
}

struct BehaviourRow
{
    const char* name;
    Behaviour behave;
};

const BehaviourRow kBehaviours[] = {
    {"throws", [](const VnJsonPtr&, QWidget*) { throw std::runtime_error("broken"); }},
    {"throws a number", [](const VnJsonPtr&, QWidget*) { throw 7; }},
    {"presses everything", [](const VnJsonPtr&, QWidget* window) { pressEverything(window); }},
    {"closes the dialog",
        [](const VnJsonPtr&, QWidget* window) { window ? void(window->close()) : void(); }},
    {"deletes all records",
        [](const VnJsonPtr& root, QWidget*) {
            changeLists(root, [](const VnJsonPtr& list) { host::clear(*list); });
        }},
    {"deletes the first records",
        [](const VnJsonPtr& root, QWidget*) {
            changeLists(root, [](const VnJsonPtr& list) { hostextras::removeItem(list, 0); });
        }},
    {"puts in what is no record",
        [](const VnJsonPtr& root, QWidget*) {
            changeLists(root, [](const VnJsonPtr& list) {
                host::insert(list, 0, {});
                hostextras::appendInt(list, 3);
            });
        }},
    {"adds records",
        [](const VnJsonPtr& root, QWidget*) {
            changeLists(root, [](const VnJsonPtr& list) {
                for (int i = 0; i < 3; ++i)
                    hostextras::append(list, ElementValue::createObject(0));
            });
        }},
    {"removes the lists", [](const VnJsonPtr& root, QWidget*) { removeLists(root); }},
    {"takes the tree apart", [](const VnJsonPtr& root, QWidget*) { host::clear(*root); }},
    {"takes all nodes apart",
        [](const VnJsonPtr& root, QWidget*) {
            for (const VnJsonPtr& node : containersIn(root))
                host::clear(*node);
        }},
    {"makes everything text",
        [](const VnJsonPtr& root, QWidget*) {
            changeMembers(root, [](IElementValueBase& node, const char* key) {
                node.SetDataSW(key, L"\u5899|*\n");
            });
        }},
    {"makes everything a number",
        [](const VnJsonPtr& root, QWidget*) {
            changeMembers(root,
                [](IElementValueBase& node, const char* key) { node.SetDataI(key, 1 << 30); });
        }},
    {"shares one list",
        [](const VnJsonPtr& root, QWidget*) {
            const VnJsonPtr list = hostextras::createArray(0);
            hostextras::append(list, root);
            changeMembers(root, [&](IElementValueBase& node, const char* key) {
                if (node.GetDataJ(key))
                    node.SetDataJ(key, list);
            });
        }},
};

/// Lets every question be answered, and every other dialog answer with the behaviour as well.
class HostileHost : public host::HostFrontEnd
{
public:
    HostileHost() : m_previous(host::setHostFrontEnd(this)) {}
    ~HostileHost() override { host::setHostFrontEnd(m_previous); }

    int messageBox(const OdString&, const OdString&, int) override { return answer(); }
    int messageBoxEx(const OdString&, const OdString&, const VnJsonPtr&, int, int, int) override
    {
        return answer();
    }
    int taskDialog(const host::TaskQuestion& question) override
    {
        return question.commands.empty() ? 2 : question.commands.front().first;
    }
    int showDialog(const OdString&, const OdString& name, const VnJsonPtr& tree,
        const OdRxObjectPtr&, QWidget*) override
    {
        merge(tree, answerOfDialog(vnutOdStringToQString(name)));
        behave(tree);
        return 1;
    }
    void help(int) override {}

    void behave(const VnJsonPtr& tree)
    {
        ++asked;
        behaviour(tree, window);
    }

    Behaviour behaviour;
    QPointer<QWidget> window;
    int asked = 0;

private:
    /// OK, yes, no and the first of several, in turn.
    int answer() { return m_answers[m_next++ % 4]; }

    static constexpr int m_answers[] = {1, 6, 7, 0};
    int m_next = 0;
    host::HostFrontEnd* m_previous;
};

class HostileCommand : public VnUiDialogInvoker
{
public:
    explicit HostileCommand(HostileHost& host) : m_host(host) {}
    void invoke(VnJsonPtr tree) override { m_host.behave(tree); }

private:
    HostileHost& m_host;
};

} // namespace

Q_DECLARE_METATYPE(Behaviour)

/// Every dialog survives whatever its command does while it is asked.
class TestHostileCallback : public QObject
{
    Q_OBJECT

private slots:
    void survives_data()
    {
        QTest::addColumn<DialogSample>("sample");
        QTest::addColumn<Behaviour>("behaviour");
        for (const DialogSample& sample : dialogSamples()) {
            for (const BehaviourRow& row : kBehaviours)
                QTest::addRow("%s %s", qPrintable(sample.name), row.name) << sample << row.behave;
        }
    }

    void survives()
    {
        QFETCH(DialogSample, sample);
        HostileHost host;
        QFETCH(Behaviour, behaviour);
        host.behaviour = behaviour;
        int next = 0;
        PopupAnswerer popups([&](int count) { return next++ % count; });
        const OdRxObjectPtr command = OdRxObjectImpl<HostileCommand>::createObject(host);
        const auto dialog = m_module.createDialog(sample.name, tree(sample.tree), command);
        if (!dialog)
            QSKIP("not built");
        host.window = dialog.window();
        QVERIFY(host.window);
        press(dialog, host, sample, command);

        if (sample.asksItsCommand)
            QVERIFY(host.asked > 0);
        QVERIFY(host.window);
        host.window->show();
        for (int i = 0; i < 4 && host.window->isVisible(); ++i) // It may ask whether to close.
            host.window->close();
        QVERIFY(!host.window->isVisible());
    }

private:
    /// Does each thing that can be done with a fresh tree, once.
    static void press(const host::WatchedDialog& dialog, HostileHost& host,
        const DialogSample& sample, const OdRxObjectPtr& command)
    {
        host.window->show();
        const std::size_t count = actsIn(*host.window).size();
        for (std::size_t i = 0; i < count && host.window; ++i) {
            dialog->setData(tree(sample.tree), command);
            host.window->show();
            const auto acts = actsIn(*host.window);
            if (i < acts.size())
                acts[i]();
        }
    }

    ModuleFixture m_module;
};

QTEST_MAIN(TestHostileCallback)

#include "tst_hostilecallback.moc"
