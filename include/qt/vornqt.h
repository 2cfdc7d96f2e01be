#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <utility>
#include <vector>

namespace vnsi {

/// Runs `work` on the user-interface thread and waits until it is done. On that thread it runs
/// directly; on another thread it goes through the request service, but only while a command is
/// running. Returns false, without running `work`, when neither applies or when the service fails.
bool vnqtRunOnUiThread(const std::function<void()>& work);

/// One request that a dialog sends to the running command.
struct VnQtRequest
{
    int code = 0;
    /// The keys that the command answers in. They, and no others, are cleared before the command is
    /// asked.
    std::vector<const char*> answers = {};
    int parameter = 0;
    /// Written under "parameter" in place of the number, unless it is empty.
    VnJsonPtr parameterTree = {};
    const char* codeKey = "marker";
};

/// A function that writes the arguments of a request into the node that the request is sent on.
using VnQtArgumentWriter = std::function<void(IElementValueBase& node)>;

/// The answer to a request. It holds the very node that the request was sent on and keeps it alive,
/// whatever the command did to the tree around it. When there is no answer (no node, no command to
/// ask, or a call-back that threw), it holds an object without keys, so that every key reads its
/// default.
///
/// What the command may have written elsewhere in the tree must be looked up again from the
/// dialog's data.
class VnQtAnswer
{
public:
    VnQtAnswer();
    explicit VnQtAnswer(VnJsonPtr node) : m_node(std::move(node)), m_isAnswered(true) {}

    /// Whether the command was asked and returned normally.
    explicit operator bool() const { return m_isAnswered; }
    const VnJsonPtr& node() const { return m_node; }
    const IElementValueBase* operator->() const { return &*m_node; }

private:
    VnJsonPtr m_node;
    bool m_isAnswered = false;
};

/// A dialog's call-back object. It passes requests on to the command's call-back object, catches
/// what that throws, and reports the cause in a message box.
class VnQtCommandInvoker : public VnUiDialogInvoker
{
public:
    /// `command` may be null or an object that is no call-back object; then requests stay
    /// unanswered.
    explicit VnQtCommandInvoker(const OdRxObjectPtr& command);

    bool hasCommand() const { return !m_command.isNull(); }
    void invoke(VnJsonPtr tree) override { hasAnswered(tree); }
    /// Passes the tree to the command. Returns false when there is no command and when it threw.
    bool hasAnswered(const VnJsonPtr& tree);

private:
    OdSmartPtr<VnUiDialogInvoker> m_command;
};

/// Sends a request on `node`: writes "parameter", the code and the arguments, clears the answer
/// keys, passes the node to the command and returns when the command has answered. Without a node
/// or without a command it writes nothing.
VnQtAnswer vnqtAsk(VnJsonPtr node, OdSmartPtr<VnQtCommandInvoker> invoker, OdAnsiString dialogName,
    const VnQtRequest& request, const VnQtArgumentWriter& writeArguments = {});

/// Gives a dialog whose widgets are made what they do not have of themselves: Alt with the letter
/// that a label shows in plain brackets goes to the label's field, F1 shows the help, and fields
/// and lists are called as their labels, for those who hear them. Once is enough; again adds what
/// has come since.
void vnqtFinishDialog(QDialog& dialog);

/// The part of a dialog's wrapper, as the host sees it, that does not depend on the dialog class.
class VnQtUIModeDialogBase : public VnUiModeDialogBase
{
public:
    VnQtUIModeDialogBase();
    ~VnQtUIModeDialogBase() override;

    int doModal() override;
    /// Ends a dialog that has no `endDialog` of its own: writes `code` as "result" and closes the
    /// window.
    virtual void endDialog(int code);
    /// Builds the window under `parent`, which may be null. Returns true when the window exists,
    /// also from an earlier call. This must stay the last of the wrapper's virtual functions,
    /// because they are called by position.
    virtual bool createDialog(QWidget* parent, unsigned flags, const char* objectName) = 0;
    /// The tree that "result" is written into.
    const VnJsonPtr& resultData() const { return m_result; }

    /// Makes `doModal` show the dialog again after it is closed instead of returning.
    void reshow() { m_reshow = 1; }

protected:
    VnJsonPtr m_data;
    OdRxObjectPtr m_invoker;
    VnJsonPtr m_result;
    /// A guarded pointer, because the parent window may delete the dialog.
    QPointer<QWidget> m_dialog;
    OdInt32 m_reshow = 0;
};

/// Wraps one dialog of class `T` for the host.
template <class T>
class VnQtModeDialog : public VnQtUIModeDialogBase
{
public:
    int setData(VnJsonPtr data, OdRxObjectPtr invoker) override
    {
        m_data = data;
        m_invoker = invoker;
        const bool isSet = m_pDialog && m_pDialog->setData(data, invoker);
        if (isSet)
            vnqtFinishDialog(*m_pDialog);
        return isSet ? 1 : 0;
    }

    bool createDialog(QWidget* parent, unsigned flags, const char* objectName) override
    {
        if (m_pDialog)
            return true;
        m_pDialog = new T(this, parent, Qt::WindowFlags(static_cast<int>(flags)));
        m_dialog = m_pDialog;
        if (objectName)
            m_pDialog->setDialogName(objectName);
        return m_pDialog->initDialog();
    }

private:
    QPointer<T> m_pDialog;
};

/// Makes a wrapper concrete by adding the reference count. The last release deletes the wrapper and
/// the dialog on the user-interface thread.
template <class T, class TInterface = T>
class VnQtRxObjectImpl : public T
{
public:
    static OdSmartPtr<TInterface> createObject()
    {
        return OdSmartPtr<TInterface>(new VnQtRxObjectImpl, kOdRxObjAttach);
    }

    void addRef() override { ++m_nRefCounter; }
    void release() override
    {
        if (m_nRefCounter <= 0)
            OdAssert("(m_nRefCounter > 0)", "include/qt/vornqt.h", __LINE__);
        if (--m_nRefCounter != 0)
            return;
        vnqtRunOnUiThread([this] { delete this; });
    }
    long numRefs() const override { return m_nRefCounter; }

private:
    std::atomic<OdInt32> m_nRefCounter{1};
};

/// Base of every dialog class `T`. It keeps what the dialog was given and knows how the dialog
/// sends requests and ends.
///
/// The virtual functions are called by position, including those that this module leaves empty.
/// Their order is part of the interface.
template <class T, class Base>
class VnQtModeDialogImpl : public Base
{
public:
    using VnInvoker = OdRxObjectImpl<VnQtCommandInvoker>;

    VnQtModeDialogImpl(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
        : Base(parent, flags),
          m_wrapper(wrapper)
    {
    }

    // The hooks take handles by value because overriding functions rely on it.
    // NOLINTBEGIN(performance-unnecessary-value-param)
    virtual void onCreated() {}
    virtual void onShown() {}
    /// Called by `setData` when the dialog has received its tree.
    virtual void onDataSet(VnJsonPtr) {}
    virtual void onHidden() {}
    virtual void onActivated() {}
    virtual void onDeactivated() {}
    /// Closes the dialog with `code` as its result.
    virtual void endDialog(int code) { m_wrapper->endDialog(code); }

    /// Stores the tree and the call-back object. Dialogs extend this function to fill their
    /// widgets.
    virtual bool setData(VnJsonPtr data, OdRxObjectPtr invoker)
    {
        m_data = std::move(data);
        m_invoker = std::move(invoker);
        m_callBack = VnInvoker::createObject(m_invoker);
        onDataSet(m_data);
        return true;
    }
    /// Builds the widgets. Returns false when the dialog cannot be shown.
    virtual bool initDialog() { return true; }

    virtual void onInvoke(VnJsonPtr) {}
    virtual void onDocumentActivated() {}
    virtual void onDocumentClosed() {}
    virtual void onSettingsChanged() {}
    virtual void onHostQuit() {}
    // NOLINTEND(performance-unnecessary-value-param)

    /// Sets the dialog's object name, by which scripts find it and which the request log records.
    void setDialogName(const char* objectName)
    {
        m_dialogName = objectName;
        this->setObjectName(QString::fromUtf8(objectName));
    }

protected:
    const VnJsonPtr& data() const { return m_data; }
    const OdRxObjectPtr& invoker() const { return m_invoker; }
    /// Whether there are both a tree to send requests on and a command to answer them.
    bool canRequest() const { return m_data && m_callBack && m_callBack->hasCommand(); }
    VnQtUIModeDialogBase* wrapper() const { return m_wrapper; }
    VnJsonPtr result() const { return m_wrapper->resultData(); }

    /// Sends a request to the running command on the dialog's tree. Read the answers from the
    /// returned object: `askCommand({6, {"IsExistBlock"}})->GetDataB("IsExistBlock")`.
    VnQtAnswer askCommand(const VnQtRequest& request, const VnQtArgumentWriter& writeArguments = {})
    {
        return askCommandOn(m_data, request, writeArguments);
    }
    /// Sends a request on `node` instead of the dialog's tree. Sends nothing when `node` is empty.
    VnQtAnswer askCommandOn(const VnJsonPtr& node, const VnQtRequest& request,
        const VnQtArgumentWriter& writeArguments = {})
    {
        return vnqtAsk(
            m_data ? node : VnJsonPtr(), m_callBack, m_dialogName, request, writeArguments);
    }

private:
    VnQtUIModeDialogBase* m_wrapper;
    VnJsonPtr m_data;
    OdRxObjectPtr m_invoker;
    OdSmartPtr<VnQtCommandInvoker> m_callBack;
    OdAnsiString m_dialogName;
};

} // namespace vnsi
