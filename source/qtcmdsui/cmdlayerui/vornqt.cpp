#include "vornqt.h"

#include "vnmessages.h"
#include "vnproduct.h"
#include "vnrequests.h"
#include "vnservicedict.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace vnsi {

namespace {

/// One JSON line a request: dialog, code, tree before, tree after. Off until an integrator asks.
Q_LOGGING_CATEGORY(lcRequests, "quenlith.layers.requests", QtWarningMsg)

constexpr int kUndecided = -1;
constexpr int kAccepted = 1;
constexpr int kCancelled = 2;

void clearAnswers(IElementValueBase& node, const VnQtRequest& request)
{
    for (const char* key : request.answers)
        node.set(key, false);
}

void reportFailure(const char* cause)
{
    const QString text = QCoreApplication::translate(
        "vnsi::VnQtRequest", "命令在处理对话框的请求时出错，此次操作没有完成。\n\n原因：%1");
    vnuiMessageBox(
        OdString(text.arg(QString::fromUtf8(cause)).toStdWString()), kProductName, kVnIconWarning);
}

bool invokeGuarded(VnUiDialogInvoker& invoker, const VnJsonPtr& root)
{
    try {
        invoker.invoke(root);
        return true;
    } catch (const std::exception& error) {
        reportFailure(error.what());
    } catch (...) {
        reportFailure("未知");
    }
    return false;
}

void logRequest(
    const OdAnsiString& dialog, int code, const OdAnsiString& before, const OdAnsiString& after)
{
    qCDebug(lcRequests, R"({"dialog":"%s","code":%d,"before":%s,"after":%s})", dialog.c_str(), code,
        before.c_str(), after.c_str());
}

void writeEnvelope(IElementValueBase& node, const VnQtRequest& request)
{
    if (request.parameterTree)
        node.SetDataJ("parameter", request.parameterTree);
    else
        node.set("parameter", request.parameter);
    node.SetDataI(request.codeKey, request.code);
}

/// Marks what the interface does for this thread while it lives.
class ScrapMark
{
public:
    explicit ScrapMark(int id) : m_id(id) { vnedPushUIScrap(id); }
    ~ScrapMark() { vnedPopUIScrap(m_id); }
    ScrapMark(const ScrapMark&) = delete;
    ScrapMark& operator=(const ScrapMark&) = delete;

private:
    int m_id;
};

/// False where there is nobody to post to.
bool postAndWait(const std::function<void()>& work)
{
    const auto server =
        OdSmartPtr<VnRequestSvr>::castFrom(vn_arbitDict_getservice(L"Core/RequestSvr").get());
    VnUiProxy* const proxy = server ? grUIProxy(server->currentDocument()) : nullptr;
    if (!proxy)
        return false;
    const ScrapMark mark(proxy->scrapId());
    int status = proxy->post(L"proxyRequest", OdRxObjectImpl<VnsiRequest>::createObject(work));
    while (status != kVnRequestDone)
        status = proxy->serviceReply();
    return true;
}

} // namespace

bool vnqtSendRequest(const VnJsonPtr& root, const OdRxObjectPtr& invoker,
    const OdAnsiString& dialogName, const VnQtRequest& request,
    const VnQtArgumentWriter& writeArguments)
{
    const auto callBack = VnUiDialogInvoker::cast(invoker.get());
    if (!root || !callBack)
        return false;

    IElementValueBase& node = request.node ? *request.node : *root;
    writeEnvelope(node, request);
    if (writeArguments)
        writeArguments(node);
    clearAnswers(node, request);

    const bool logged = lcRequests().isDebugEnabled();
    const OdAnsiString before = logged ? ElementValue::toJson(root) : OdAnsiString();
    const VnJsonPtr handedOver = root;
    const bool answered = invokeGuarded(*callBack, handedOver);
    if (!answered)
        clearAnswers(node, request);
    if (logged)
        logRequest(dialogName, request.code, before, ElementValue::toJson(root));
    return answered;
}

bool vnqtRunOnUiThread(const std::function<void()>& work)
{
    if (vnedIsRunningInUI()) {
        work();
        return true;
    }
    try {
        return vnedIsRunningInCommand() && postAndWait(work);
    } catch (...) {
        return false; // The caller may be a destructor, which nothing may leave.
    }
}

VnQtUIModeDialogBase::VnQtUIModeDialogBase() : m_result(ElementValue::createObject(2)) {}

VnQtUIModeDialogBase::~VnQtUIModeDialogBase()
{
    delete m_dialog;
}

void VnQtUIModeDialogBase::endDialog(int code)
{
    m_result->set("result", code);
    if (m_dialog)
        m_dialog->close();
}

int VnQtUIModeDialogBase::doModal()
{
    if (auto* dialog = qobject_cast<QDialog*>(m_dialog.data())) {
        m_result->set("result", kUndecided);
        int exitCode = dialog->exec();
        while (m_reshow && m_dialog) {
            m_reshow = 0;
            exitCode = dialog->exec();
        }
        if (m_result->GetDataI("result", kUndecided) == kUndecided) {
            if (exitCode == QDialog::Rejected)
                m_result->set("result", kCancelled);
            else if (exitCode == QDialog::Accepted)
                m_result->set("result", kAccepted);
        }
    }
    return m_result->GetDataI("result", kUndecided);
}

} // namespace vnsi
