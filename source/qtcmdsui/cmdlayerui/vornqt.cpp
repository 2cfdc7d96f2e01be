#include "vornqt.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "moduletexts.h"

#include <QLoggingCategory>

namespace vnsi {

namespace {

/// Logs one line of JSON per request: dialog, code, tree before, tree after. It is off unless an
/// integrator turns it on.
Q_LOGGING_CATEGORY(lcRequests, "quenlith.layers.requests", QtWarningMsg)

constexpr int kUndecided = -1;

void clearAnswers(IElementValueBase& node, const VnQtRequest& request)
{
    for (const char* key : request.answers)
        node.SetDataB(key, false);
}

void reportFailure(const QString& cause)
{
    const QString text = Texts::tr("命令在处理对话框的请求时出错，此次操作没有完成。\n\n原因：%1");
    hostapi::messageBox(text.arg(cause), kProductName, kVnIconWarning);
}

void logRequest(
    const OdAnsiString& dialog, int code, const std::string& before, const std::string& after)
{
    qCDebug(lcRequests, R"({"dialog":"%s","code":%d,"before":%s,"after":%s})", dialog.c_str(), code,
        before.c_str(), after.c_str());
}

void writeEnvelope(IElementValueBase& node, const VnQtRequest& request)
{
    if (request.parameterTree)
        node.SetDataJ("parameter", request.parameterTree);
    else
        node.SetDataI("parameter", request.parameter);
    node.SetDataI(request.codeKey, request.code);
}

} // namespace

VnQtAnswer::VnQtAnswer() : m_node(hostapi::makeObject()) {}

VnQtCommandInvoker::VnQtCommandInvoker(const OdRxObjectPtr& command)
    : m_command(VnUiDialogInvoker::cast(command.get()))
{
}

bool VnQtCommandInvoker::hasAnswered(const VnJsonPtr& tree)
{
    if (!m_command)
        return false;
    try {
        m_command->invoke(tree);
        return true;
    } catch (const std::exception& error) {
        reportFailure(QString::fromUtf8(error.what()));
    } catch (...) {
        reportFailure(Texts::tr("未知"));
    }
    return false;
}

// What it needs is taken by value: the command may end the dialog that holds the rest.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
VnQtAnswer vnqtAsk(VnJsonPtr node, OdSmartPtr<VnQtCommandInvoker> invoker, OdAnsiString dialogName,
    const VnQtRequest& request, const VnQtArgumentWriter& writeArguments)
{
    if (!node || !invoker || !invoker->hasCommand())
        return {};
    writeEnvelope(*node, request);
    if (writeArguments)
        writeArguments(*node);
    clearAnswers(*node, request);

    const bool isLogged = lcRequests().isDebugEnabled();
    const std::string before = isLogged ? hostapi::jsonOf(node) : std::string();
    const bool isAnswered = invoker->hasAnswered(node);
    if (!isAnswered)
        clearAnswers(*node, request);
    if (isLogged)
        logRequest(dialogName, request.code, before, hostapi::jsonOf(node));
    return isAnswered ? VnQtAnswer(node) : VnQtAnswer();
}

VnQtUIModeDialogBase::VnQtUIModeDialogBase() : m_result(hostapi::makeObject()) {}

VnQtUIModeDialogBase::~VnQtUIModeDialogBase()
{
    delete m_dialog;
}

void VnQtUIModeDialogBase::endDialog(int code)
{
    m_result->SetDataI("result", code);
    if (m_dialog)
        m_dialog->close();
}

int VnQtUIModeDialogBase::doModal()
{
    const OdRxObjectPtr self(this); // The command may release the dialog while it answers.
    if (auto* dialog = qobject_cast<QDialog*>(m_dialog.data())) {
        m_result->SetDataI("result", kUndecided);
        int exitCode = dialog->exec();
        while (m_reshow && m_dialog) {
            m_reshow = 0;
            exitCode = dialog->exec();
        }
        if (m_result->GetDataI("result", kUndecided) == kUndecided) {
            if (exitCode == QDialog::Rejected)
                m_result->SetDataI("result", kVnAnswerCancel);
            else if (exitCode == QDialog::Accepted)
                m_result->SetDataI("result", kVnAnswerOk);
        }
    }
    return m_result->GetDataI("result", kUndecided);
}

} // namespace vnsi
