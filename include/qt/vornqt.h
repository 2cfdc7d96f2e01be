#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <utility>
#include <vector>

namespace vnsi {

/// Runs `work` on the user-interface thread and waits for it: at once when the caller is there,
/// through the request service while a command runs elsewhere. Returns false when neither holds and
/// when the service fails; `work` is then dropped.
bool vnqtRunOnUiThread(const std::function<void()>& work);

/// One question of a dialog to the running command.
struct VnQtRequest
{
    int code = 0;
    /// Keys the command answers in; cleared before it is asked, and no others are.
    std::vector<const char*> answers = {};
    int parameter = 0;
    /// Stands under "parameter" instead of the number when not empty.
    VnJsonPtr parameterTree = {};
    const char* codeKey = "marker";
};

/// Writes the arguments of a request into the node it goes out on.
using VnQtArgumentWriter = std::function<void(IElementValueBase& node)>;

/// What a request brought: the very node that it went out on, kept alive whatever the command did
/// to the tree around it. Without an answer (no node, nobody to ask, a call-back that threw) it
/// stands for an object without keys, so that every answer reads its default.
///
/// What the command may have put elsewhere in the tree is looked up afresh from the dialog's data.
class VnQtAnswer
{
public:
    VnQtAnswer();
    explicit VnQtAnswer(VnJsonPtr node) : m_node(std::move(node)), m_isAnswered(true) {}

    /// Whether the command was asked and came back.
    explicit operator bool() const { return m_isAnswered; }
    const VnJsonPtr& node() const { return m_node; }
    const IElementValueBase* operator->() const { return &*m_node; }

private:
    VnJsonPtr m_node;
    bool m_isAnswered = false;
};

/// A dialog's call-back object: hands requests on to the command's, and ends there what that
/// throws, with a message box that tells the cause.
class VnQtCommandInvoker : public VnUiDialogInvoker
{
public:
    /// `command` may be null or no call-back object at all; then nobody is asked.
    explicit VnQtCommandInvoker(const OdRxObjectPtr& command);

    bool hasCommand() const { return !m_command.isNull(); }
    void invoke(VnJsonPtr tree) override { hasAnswered(tree); }
    /// Hands the tree on; false where nobody was asked and where the command threw.
    bool hasAnswered(const VnJsonPtr& tree);

private:
    OdSmartPtr<VnUiDialogInvoker> m_command;
};

/// Sends a request on `node`: writes "parameter", the code and the arguments, clears the answers,
/// hands the node over and returns when it has been answered. Nothing is written without a node
/// or somebody to ask.
VnQtAnswer vnqtAsk(VnJsonPtr node, OdSmartPtr<VnQtCommandInvoker> invoker, OdAnsiString dialogName,
    const VnQtRequest& request, const VnQtArgumentWriter& writeArguments = {});

/// What every dialog's wrapper is to the host, apart from the dialog class.
class VnQtUIModeDialogBase : public VnUiModeDialogBase
{
public:
    VnQtUIModeDialogBase();
    ~VnQtUIModeDialogBase() override;

    int doModal() override;
    /// The wrapper's own way of ending the dialog, for dialogs without one: writes `code` as
    /// "result" and closes the window.
    virtual void endDialog(int code);
    /// Builds the window under `parent` (may be null); true when it is there, also from an earlier
    /// call. By place the last of the wrapper's virtual functions.
    virtual bool createDialog(QWidget* parent, unsigned flags, const char* objectName) = 0;
    /// The tree that carries "result".
    const VnJsonPtr& resultData() const { return m_result; }

    /// Shows the dialog again as soon as it is closed, instead of returning.
    void reshow() { m_reshow = 1; }

protected:
    VnJsonPtr m_data;
    OdRxObjectPtr m_invoker;
    VnJsonPtr m_result;
    QPointer<QWidget> m_dialog; ///< Guarded: the parent window may take the dialog with it.
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
        return m_pDialog && m_pDialog->setData(data, invoker) ? 1 : 0;
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

/// Makes a wrapper concrete: adds the reference count, whose last release deletes wrapper and
/// dialog on the user-interface thread.
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

/// Base of every dialog class `T`: what it is handed, and how it asks and ends.
///
/// The virtual functions are called by place, also those this module leaves empty; their order is
/// part of the interface.
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

    // Hooks take handles by value: what overrides them relies on that.
    // NOLINTBEGIN(performance-unnecessary-value-param)
    virtual void onCreated() {}
    virtual void onShown() {}
    /// The dialog has been handed its tree; called by `setData`.
    virtual void onDataSet(VnJsonPtr) {}
    virtual void onHidden() {}
    virtual void onActivated() {}
    virtual void onDeactivated() {}
    /// Closes the dialog with `code` as its result.
    virtual void endDialog(int code) { m_wrapper->endDialog(code); }

    /// Keeps the tree and the call-back object. Dialogs extend it and fill their widgets.
    virtual bool setData(VnJsonPtr data, OdRxObjectPtr invoker)
    {
        m_data = std::move(data);
        m_invoker = std::move(invoker);
        m_callBack = VnInvoker::createObject(m_invoker);
        onDataSet(m_data);
        return true;
    }
    /// Builds the widgets; false when the dialog cannot be shown.
    virtual bool initDialog() { return true; }

    virtual void onInvoke(VnJsonPtr) {}
    virtual void onDocumentActivated() {}
    virtual void onDocumentClosed() {}
    virtual void onSettingsChanged() {}
    virtual void onHostQuit() {}
    // NOLINTEND(performance-unnecessary-value-param)

    /// Names the dialog, for scripts and for the request log.
    void setDialogName(const char* objectName)
    {
        m_dialogName = objectName;
        this->setObjectName(QString::fromUtf8(objectName));
    }

protected:
    const VnJsonPtr& data() const { return m_data; }
    const OdRxObjectPtr& invoker() const { return m_invoker; }
    /// Whether there is a tree to ask about and somebody to ask.
    bool canRequest() const { return m_data && m_callBack && m_callBack->hasCommand(); }
    VnQtUIModeDialogBase* wrapper() const { return m_wrapper; }
    VnJsonPtr result() const { return m_wrapper->resultData(); }

    /// Asks the running command on the dialog's tree. Read the answers from what comes back:
    /// `askCommand({6, {"IsExistBlock"}})->GetDataB("IsExistBlock")`.
    VnQtAnswer askCommand(const VnQtRequest& request, const VnQtArgumentWriter& writeArguments = {})
    {
        return askCommandOn(m_data, request, writeArguments);
    }
    /// The same on another node, which is written and handed over in the tree's place; nothing is
    /// sent where it is empty.
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
