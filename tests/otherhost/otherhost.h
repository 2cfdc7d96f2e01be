#pragma once

#include "host.h"

#include <QDialog>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <functional>

#pragma GCC visibility push(default)

namespace otherhost {

/// Ways of behaving that the contract allows to a host.
enum Freedom {
    kEmptyAnswers = 1, ///< Dialogs and message boxes give empty answers.
    kSaysNo = 2,       ///< Answers no to every question.
    kRealDialogs = 4,  ///< Shows the module's own dialogs instead of playing their answers.
    kNoSettings = 8,
    kOddSettings = 16, ///< Settings have other types than were written.
    kNoServices = 32,
    kOddServices = 64, ///< Services are of unexpected classes.
    kNoColorText = 128,
    kWindow = 256, ///< Dialogs have a parent.
    kNoTree = 512,
    kNoCommand = 1024,
    /// The call-back object keeps the default implementation, which does nothing.
    kDumbCommand = 2048,
    kOtherThread = 4096,     ///< Releases dialogs on another thread while a command runs.
    kTakesArguments = 16384, ///< Removes the arguments again before a request is sent.
    kEverything = 8192       ///< Performs all user actions, not just one of each kind.
};

using Change = std::function<void(const vnsi::VnJsonPtr& asked)>;

struct Mischief
{
    const char* name;
    int freedoms = 0;
    Change command = {};   ///< Replaces the agreed answer; may throw.
    Change questions = {}; ///< Runs before each dialog or box of the host; may throw.
    const char* key = "";  ///< The key concerned; nothing happens in trees without it.
};

/// All ways in which this host mistreats dialogs.
const std::vector<Mischief>& mischiefs();

/// The host's state: its present behaviour, what it shows, and what it has recorded.
class OtherHost
{
public:
    static OtherHost& instance();

    bool may(int freedom) const { return mischief && (mischief->freedoms & freedom); }
    void fault(const QString& text);
    void note(const QString& question);
    /// Answers a request as agreed.
    void answer(const vnsi::VnJsonPtr& tree);
    void answerRequest(const vnsi::VnJsonPtr& tree);
    vnsi::VnJsonPtr show(const OdString& service, const OdString& name, const vnsi::VnJsonPtr& tree,
        const OdRxObjectPtr& command);
    int press(int style);

    const Mischief* mischief = nullptr; ///< Null while the host behaves as agreed.
    QString dialogName;
    vnsi::VnUiModeDialogBasePtr dialog;
    QPointer<QDialog> window;
    vnsi::VnJsonPtr root;
    QStringList asked; ///< Requests and questions in their order.
    QSet<QString> seen;
    QStringList faults;

private:
    int codeOf(const vnsi::IElementValueBase& tree) const;
    void checkRequest(const vnsi::IElementValueBase& tree);
    void checkRecords(const vnsi::VnJsonPtr& list, const QString& key, const QString& name);
};

/// Makes a tree from a JSON object. Each value gets the type that was agreed for its key.
vnsi::VnJsonPtr treeOf(const QString& json);
/// All nodes of the tree, including `node` itself, each once.
std::vector<vnsi::VnJsonPtr> nodesIn(const vnsi::VnJsonPtr& node);
/// Makes a call-back object that asks the host.
OdRxObjectPtr makeCommand(bool isDumb);

} // namespace otherhost

#pragma GCC visibility pop
