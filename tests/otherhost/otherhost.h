#pragma once

#include "host.h"

#include <QDialog>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <functional>

#pragma GCC visibility push(default)

namespace otherhost {

/// What a host may do and still keep the contract.
enum Freedom {
    kEmptyAnswers = 1, ///< Of dialogs and of message boxes.
    kSaysNo = 2,       ///< To every question.
    kRealDialogs = 4,  ///< The module's own dialogs are shown, not played.
    kNoSettings = 8,
    kOddSettings = 16, ///< Of other types than were written.
    kNoServices = 32,
    kOddServices = 64, ///< Of classes that nobody expects.
    kNoColorText = 128,
    kWindow = 256, ///< Dialogs have a parent.
    kNoTree = 512,
    kNoCommand = 1024,
    kDumbCommand = 2048,     ///< The call-back object keeps the default that does nothing.
    kOtherThread = 4096,     ///< Lets go of dialogs on another thread, while a command runs.
    kTakesArguments = 16384, ///< Away again before a request is sent.
    kEverything = 8192       ///< Has the user do all there is to do, not each kind of thing once.
};

using Change = std::function<void(const vnsi::VnJsonPtr& asked)>;

struct Mischief
{
    const char* name;
    int freedoms = 0;
    Change command = {};   ///< Instead of the agreed answer; may throw.
    Change questions = {}; ///< Before each dialog or box of the host; may throw.
    const char* key = "";  ///< What it is done to; nothing happens in trees without it.
};

/// Everything that this host does to dialogs, a row each.
const std::vector<Mischief>& mischiefs();

/// The host's state: how it behaves now, what it shows and what it noticed.
class OtherHost
{
public:
    static OtherHost& instance();

    bool may(int freedom) const { return mischief && (mischief->freedoms & freedom); }
    void fault(const QString& text);
    void note(const QString& question);
    /// Answers as agreed.
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

/// The tree of a JSON object, each value with the type agreed on for its key.
vnsi::VnJsonPtr treeOf(const QString& json);
/// Every node below and including `node`, once.
std::vector<vnsi::VnJsonPtr> nodesIn(const vnsi::VnJsonPtr& node);
/// A call-back object that asks the host.
OdRxObjectPtr makeCommand(bool isDumb);

} // namespace otherhost

#pragma GCC visibility pop
