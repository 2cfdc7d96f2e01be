#pragma once

#include "hostfrontend.h"

#include <QQueue>
#include <QSet>
#include <QStringList>

#include <functional>

/// Takes the place of the user while it exists: records every question in order and answers it from
/// a script. A question without an answer, or an answer without a question, fails the test.
///
/// Lines of the log:
///   message|text|caption|style
///   messageEx|caption|text|style|code|icon          and |btnText/0|... if present
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
    /// result, and the members that are written into its tree, as JSON). Messages with only one
    /// button take no answer.
    void answer(int value, const QString& json = QStringLiteral("{}"));
    /// Queues a function that receives a dialog's tree and returns the dialog's result.
    void answer(const Answer& answer);

    /// Makes dialogs of this name run for real. They are recorded nevertheless.
    void passThrough(const QString& dialogName) { m_passed.insert(dialogName); }
    /// Whether the log shows the trees of dialogs.
    void setLogsTrees(bool logsTrees) { m_logsTrees = logsTrees; }

    void note(const QString& line) { m_log.append(line); }
    const QStringList& log() const { return m_log; }
    /// Returns the log and clears it.
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
