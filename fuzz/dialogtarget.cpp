#include "RxObjectImpl.h"
#include "dialogpresser.h"
#include "dialogsamples.h"
#include "fuzzing.h"
#include "hostfrontend.h"
#include "modulefixture.h"
#include "settings.h"
#include "treechanges.h"
#include "trees.h"
#include "valuetree.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QApplication>
#include <QPointer>

#include <memory>
#include <stdexcept>

using namespace vnsi;

namespace {

constexpr int kMostActs = 12;
constexpr int kMostChanges = 6;
constexpr int kDeepest = 3; ///< The limit for dialogs that open dialogs.
constexpr const wchar_t* kSections[] = {
    L"LayerState_dialog", L"table_dialog", L"layertransset_dialog"};

/// One run. All partners of the dialog take their answers from the same bytes.
struct Run
{
    explicit Run(FuzzedDataProvider& data) : bytes(data) {}

    int choose(int count) { return bytes.ConsumeIntegralInRange(0, count - 1); }
    void act(QWidget* window, int most);
    int show(const QString& name, const VnJsonPtr& tree, const OdRxObjectPtr& invoker);

    FuzzedDataProvider& bytes;
    ModuleFixture* module = nullptr;
    QPointer<QWidget> window; ///< The window of the dialog that was opened first.
    int depth = 0;
};

void Run::act(QWidget* shown, int most)
{
    const QPointer<QWidget> guarded(shown);
    for (int i = 0; i < most && guarded && bytes.remaining_bytes() > 0; ++i) {
        guarded->show();
        const auto acts = actsIn(*guarded);
        acts[static_cast<std::size_t>(choose(static_cast<int>(acts.size())))]();
    }
}

/// Answers for a dialog that another one opens, either directly or by running that dialog.
int Run::show(const QString& name, const VnJsonPtr& tree, const OdRxObjectPtr& invoker)
{
    ++depth;
    const auto opened = depth < kDeepest && bytes.ConsumeBool()
                            ? module->createDialog(name, tree, invoker)
                            : host::WatchedDialog();
    if (opened)
        act(opened.window(), kMostActs / 2);
    else if (tree)
        merge(tree, answerOfDialog(name));
    fuzz::changeTree(tree, bytes, 2);
    --depth;
    return choose(4);
}

class FuzzedHost : public host::HostFrontEnd
{
public:
    explicit FuzzedHost(Run& run) : m_run(run), m_previous(host::setHostFrontEnd(this)) {}
    ~FuzzedHost() override { host::setHostFrontEnd(m_previous); }

    int messageBox(const OdString&, const OdString&, int) override { return m_run.choose(8); }
    int messageBoxEx(const OdString&, const OdString&, const VnJsonPtr&, int, int, int) override
    {
        return m_run.choose(8);
    }
    int taskDialog(const host::TaskQuestion& question) override
    {
        const auto& commands = question.commands;
        const int which = m_run.choose(static_cast<int>(commands.size()) + 1);
        return which == 0 ? 2 : commands[static_cast<std::size_t>(which) - 1].first;
    }
    int showDialog(const OdString&, const OdString& name, const VnJsonPtr& tree,
        const OdRxObjectPtr& invoker, QWidget*) override
    {
        return m_run.show(vnutOdStringToQString(name), tree, invoker);
    }
    void help(int) override {}

private:
    Run& m_run;
    host::HostFrontEnd* m_previous;
};

class FuzzedCommand : public VnUiDialogInvoker
{
public:
    explicit FuzzedCommand(Run& run) : m_run(run) {}
    void invoke(VnJsonPtr tree) override
    {
        fuzz::require(tree.get(), "requests carry a tree");
        fuzz::changeTree(tree, m_run.bytes, kMostChanges);
        const int whim = m_run.choose(16);
        if (whim == 0)
            throw std::runtime_error("fuzzed");
        if (whim == 1 && m_run.depth < kDeepest) {
            ++m_run.depth;
            m_run.act(m_run.window, 2);
            --m_run.depth;
        }
    }

private:
    Run& m_run;
};

/// The application and the module, which exist until the program ends.
ModuleFixture& loadedModule()
{
    static int count = 1;
    static char name[] = "fuzz_dialog";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static auto* const application = new QApplication(count, arguments);
    Q_UNUSED(application)
    static auto* const module = new ModuleFixture;
    return *module;
}

void fuzzSettings(FuzzedDataProvider& bytes)
{
    for (const wchar_t* name : kSections) {
        const VnJsonPtr section = vn_user_config(name);
        host::clear(*section);
        fuzz::changeTree(section, bytes, 2);
    }
}

} // namespace

/// Runs each dialog with an arbitrary tree and arbitrary actions, with a host and a command that
/// answer anything.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ModuleFixture& module = loadedModule();
    host::setSettingsFolder(fuzz::scratchFolder());
    FuzzedDataProvider bytes(data, size);
    Run run(bytes);
    run.module = &module;
    FuzzedHost host(run);
    PopupAnswerer popups([&run](int count) { return run.choose(count); });

    const auto& samples = dialogSamples();
    const DialogSample& sample =
        samples[static_cast<std::size_t>(run.choose(static_cast<int>(samples.size())))];
    const VnJsonPtr root = tree(sample.tree);
    fuzz::changeTree(root, bytes, kMostChanges);
    fuzzSettings(bytes);
    auto dialog =
        module.createDialog(sample.name, root, OdRxObjectImpl<FuzzedCommand>::createObject(run));
    if (!dialog)
        return 0; // It could not be built.
    run.window = dialog.window();
    run.act(run.window, kMostActs);
    dialog = {};
    fuzz::require(!run.window, "a dialog goes with its last reference");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return 0;
}
