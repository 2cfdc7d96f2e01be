#pragma once

#include "hostfrontend.h"

#include <QQueue>
#include <QSet>
#include <QStringList>

#include <functional>

/// Stands in the user's place while it lives: notes everything that is asked, in order, and answers
/// from a script. A question without an answer, and an answer without a question, fail the test.
///
/// Lines of the log:
///   message|text|caption|style
///   messageEx|caption|text|style|code|icon          and |btnText/0|... where there are such
///   task|title|instruction|101=..;102=..
///   dialog|service|name|tree as JSON
///   help|topic
///   request|marker|parameter|keys as JSON           of a RecordingInvoker
class RecordingHost : public host::HostFrontEnd
{
public:
    using Answer = std::function<int(const vnsi::VnJsonPtr& tree)>;

    RecordingHost();
    ~RecordingHost() override;

    /// Queues the answer of the next message box (its button), task dialog (its id) or dialog (its
    /// result). Messages with one button ask nothing and take no answer.
    void answer(int value);
    /// Queues the answer of a dialog: the members of `json` are written into its tree.
    void answer(int result, const QString& json);
    /// Queues the answer of a dialog as a function that sees its tree; the value is the result.
    void answer(const Answer& answer);

    /// Lets a dialog of this name be made and run for real; it is noted all the same.
    void passThrough(const QString& dialogName) { m_passed.insert(dialogName); }
    /// The trees of dialogs are left out of the log.
    void setLogsTrees(bool logsTrees) { m_logsTrees = logsTrees; }

    void note(const QString& line) { m_log.append(line); }
    const QStringList& log() const { return m_log; }
    /// The log, which starts anew.
    QStringList takeLog() { return std::exchange(m_log, {}); }

    int messageBox(const OdString& text, const OdString& caption, int style) override;
    int messageBoxEx(const OdString& caption, const OdString& text, const vnsi::VnJsonPtr& options,
        int style, int code, int icon) override;
    int taskDialog(const host::TaskQuestion& question) override;
    int showDialog(const OdString& service, const OdString& name, const vnsi::VnJsonPtr& tree,
        const OdRxObjectPtr& invoker, QWidget* parent) override;
    void help(int topic) override;

private:
    int take(const vnsi::VnJsonPtr& tree);

    host::HostFrontEnd* m_previous;
    QQueue<Answer> m_answers;
    QSet<QString> m_passed;
    QStringList m_log;
    bool m_logsTrees = true;
};
