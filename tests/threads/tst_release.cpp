#include "RxObjectImpl.h"
#include "documents.h"
#include "handover.h"
#include "hostextras.h"
#include "hoststart.h"
#include "requests.h"
#include "vnjson.h"
#include "vnservicedict.h"
#include "vornqt.h"

#include <QApplication>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <mutex>
#include <thread>
#include <vector>

namespace {

int posted = 0; // Stands for Qt's event queue, whose locks the sanitizer does not see.

/// Posted objects, kept until all threads are done. Otherwise Qt lets the last thread delete them,
/// which it finds out with a count that the sanitizer does not see.
struct Kept
{
    std::mutex mutex;
    std::vector<QtPrivate::QSlotObjectBase*> posts;

    void add(QtPrivate::QSlotObjectBase* slot)
    {
        slot->ref();
        const std::lock_guard lock(mutex);
        posts.push_back(slot);
    }
    void drop()
    {
        for (QtPrivate::QSlotObjectBase* slot : std::exchange(posts, {}))
            slot->destroyIfLastRef();
    }
} kept;

} // namespace

/// Replaces the function of Qt that posts functions to another thread. It tells the sanitizer that
/// earlier writes are visible where the function runs.
bool QMetaObject::invokeMethodImpl(
    QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type, void* result)
{
    using Function = bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT,
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt"
        "14ConnectionTypeEPv"));
    kept.add(slot);
    __tsan_release(&posted);
    return original(object, slot, type, result);
}

using namespace vnsi;

namespace {

/// A proxy that fails when something is posted.
class BrokenProxy : public VnUiProxy
{
public:
    int scrapId() const override { return 1; }
    int post(const OdString&, const OdRxObjectPtr&) override { throw OdError_InvalidIndex(); }
    int serviceReply() override { return kVnRequestDone; }
};

VnUiProxy* brokenProxy = nullptr;

} // namespace

/// Replaces the host's function, so that a test can make it fail.
VnUiProxy* vnsi::grUIProxy(const VnDocumentPtr& document)
{
    using Function = VnUiProxy* (*)(const VnDocumentPtr&);
    static const auto original = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZN4vnsi9grUIProxyERK10OdSmartPtrINS_10VnDocumentEE"));
    return brokenProxy ? brokenProxy : original(document);
}

namespace {

constexpr int kThreads = 4;
constexpr int kDialogs = 50; ///< Per thread.

class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::MetaCall)
            __tsan_acquire(&posted);
        return QApplication::notify(receiver, event);
    }
};

std::atomic<int> made{0};
std::atomic<int> deletedElsewhere{0};

class Probe : public VnQtModeDialogImpl<Probe, QDialog>
{
public:
    Probe(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
        : VnQtModeDialogImpl(wrapper, parent, flags)
    {
        ++made;
    }
    ~Probe() override
    {
        deletedElsewhere += QThread::currentThread() != qApp->thread();
        --made;
    }
};

using Wrapper = VnQtModeDialog<Probe>;

VnUiModeDialogBasePtr makeDialog()
{
    auto dialog = VnQtRxObjectImpl<Wrapper, Wrapper>::createObject();
    dialog->createDialog(nullptr, 0, "probe");
    return dialog;
}

/// Runs `work` on several threads and processes events until all are done.
void runOnThreads(const std::function<void(int thread)>& work)
{
    std::atomic<int> running{kThreads};
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            work(i);
            --running;
        });
    while (running > 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    for (std::thread& thread : threads)
        thread.join();
    kept.drop();
}

/// Ends the program when a condition does not hold. The test framework is not used because it
/// watches tests from a thread that the sanitizer objects to.
void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::exit(1);
}

void deletesOnInterfaceThread()
{
    const host::CommandScope command;
    std::vector<std::vector<VnUiModeDialogBasePtr>> dialogs(kThreads);
    for (auto& own : dialogs) {
        for (int i = 0; i < kDialogs; ++i)
            own.push_back(makeDialog());
    }
    runOnThreads([&](int thread) { dialogs[static_cast<std::size_t>(thread)].clear(); });
    require(made == 0, "every dialog is deleted");
    require(deletedElsewhere == 0, "dialogs are deleted on the interface thread");
    require(host::markedScraps() == 0, "no mark is left");
}

/// All threads release the same dialogs; the last one causes the deletion, exactly once.
void sharesReferences()
{
    const host::CommandScope command;
    std::vector<VnUiModeDialogBasePtr> dialogs;
    dialogs.reserve(kDialogs);
    for (int i = 0; i < kDialogs; ++i)
        dialogs.push_back(makeDialog());
    std::vector<std::vector<VnUiModeDialogBasePtr>> shares(kThreads, dialogs);
    dialogs.clear();
    runOnThreads([&](int thread) {
        for (VnUiModeDialogBasePtr& dialog : shares[static_cast<std::size_t>(thread)]) {
            const VnUiModeDialogBasePtr other = dialog;
            dialog = {};
        }
    });
    require(made == 0, "every dialog is deleted");
    require(deletedElsewhere == 0, "dialogs are deleted on the interface thread");
}

void sharesTreesAndObjects()
{
    VnJsonPtr tree = ElementValue::createObject(2);
    tree->SetDataJ("LayerList", hostextras::createArray(0));
    const std::vector<VnJsonPtr> trees(kThreads, tree);
    const OdRxObjectPtr object = host::makeDocument();
    runOnThreads([&](int thread) {
        for (int i = 0; i < 1000; ++i) {
            // The copies are what is tested.
            // NOLINTBEGIN(performance-unnecessary-copy-initialization)
            const VnJsonPtr copy = trees[static_cast<std::size_t>(thread)];
            const VnJsonPtr list = copy->GetDataJ("LayerList");
            const OdRxObjectPtr other = object;
            // NOLINTEND(performance-unnecessary-copy-initialization)
            const OdRxObjectPtr service = vn_arbitDict_getservice(L"Core/RequestSvr");
        }
    });
    require(object->numRefs() == 1, "references are counted");
}

void keepsDialogWhenPostingFails()
{
    const host::CommandScope command;
    VnUiModeDialogBase* const dialog = makeDialog().detach();
    BrokenProxy broken;
    brokenProxy = &broken;
    runOnThreads([&](int thread) {
        if (thread == 0)
            dialog->release();
    });
    brokenProxy = nullptr;
    require(made == 1, "a dialog that could not be posted is left alone");
    require(host::markedScraps() == 0, "no mark is left");
    delete dialog;
}

} // namespace

int main(int count, char** arguments)
{
    const Application application(count, arguments);
    const host::Host host;
    deletesOnInterfaceThread();
    sharesReferences();
    sharesTreesAndObjects();
    keepsDialogWhenPostingFails();
    return 0;
}
