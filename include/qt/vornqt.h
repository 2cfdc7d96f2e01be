#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

#include <functional>
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
    std::vector<const char*> answers =
        {}; ///< Keys the command answers in; cleared before it is asked.
    int parameter = 0;
    VnJsonPtr parameterTree =
        {}; ///< Stands under "parameter" instead of the number when not empty.
    const char* codeKey = "marker";
    VnJsonPtr node = {}; ///< Where code, arguments and answers stand; the root when empty.
};

using VnQtArgumentWriter = std::function<void(IElementValueBase& node)>;

/// Sends a request on `root` to `invoker` and returns when it has been answered. Returns false,
/// with nothing written, without a tree or a call-back object. What the call-back throws is
/// reported in a message box; the answer keys are then clear and false is returned.
bool vnqtSendRequest(const VnJsonPtr& root, const OdRxObjectPtr& invoker,
    const OdAnsiString& dialogName, const VnQtRequest& request,
    const VnQtArgumentWriter& writeArguments);

/// What every dialog's wrapper is to the host, apart from the dialog class.
class VnQtUIModeDialogBase : public VnUiModeDialogBase
{
public:
    VnQtUIModeDialogBase();
    ~VnQtUIModeDialogBase() override;

    QWidget* widget() const override { return m_dialog; }
    VnJsonPtr resultData() const override { return m_result; }
    void endDialog(int code) override;
    int doModal() override;

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
    /// A call-back object for dialogs that this one opens: hands their requests to `onInvoke`.
    class VnInvoker : public VnUiDialogInvoker
    {
    public:
        explicit VnInvoker(VnQtModeDialogImpl* dialog) : m_dialog(dialog) {}
        void invoke(VnJsonPtr tree) override
        {
            if (m_dialog)
                m_dialog->onInvoke(tree);
        }

    private:
        QPointer<VnQtModeDialogImpl> m_dialog;
    };

    VnQtModeDialogImpl(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
        : Base(parent, flags),
          m_wrapper(wrapper)
    {
    }

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
        m_data = data;
        m_invoker = invoker;
        onDataSet(m_data);
        return true;
    }
    /// Builds the widgets; false when the dialog cannot be shown.
    virtual bool initDialog() { return true; }

    /// A dialog opened by this one has sent a request through a `VnInvoker`.
    virtual void onInvoke(VnJsonPtr) {}
    virtual void onDocumentActivated() {}
    virtual void onDocumentClosed() {}
    virtual void onSettingsChanged() {}
    virtual void onHostQuit() {}

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
    bool canRequest() const { return m_data && m_invoker; }
    VnQtUIModeDialogBase* wrapper() const { return m_wrapper; }
    VnJsonPtr result() const { return m_wrapper->resultData(); }

    /// Asks the running command; false when it could not be asked or failed, with the answers
    /// clear.
    bool sendRequest(const VnQtRequest& request, const VnQtArgumentWriter& writeArguments = {})
    {
        return vnqtSendRequest(m_data, m_invoker, m_dialogName, request, writeArguments);
    }

private:
    VnQtUIModeDialogBase* m_wrapper;
    VnJsonPtr m_data;
    OdRxObjectPtr m_invoker;
    OdAnsiString m_dialogName;
};

} // namespace vnsi
