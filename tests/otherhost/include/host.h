#pragma once

// The interface of this host, in one header: the names of its headers all lead here.

#include "platform.h"

#include <QComboBox>

#include <memory>
#include <variant>

#pragma GCC visibility push(default)

namespace vnsi {

class IElementValueBase;

/// Shared handle on one node of a value tree; may be empty.
class VnJsonPtr
{
public:
    VnJsonPtr() = default;
    explicit VnJsonPtr(std::shared_ptr<IElementValueBase> node) : m_node(std::move(node)) {}
    bool isNull() const { return !m_node; }
    explicit operator bool() const { return !isNull(); }
    IElementValueBase* get() const { return m_node.get(); }
    IElementValueBase* operator->() const { return m_node.get(); }
    IElementValueBase& operator*() const { return *m_node; }
    friend bool operator==(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node == b.m_node; }
    friend bool operator!=(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node != b.m_node; }
    VnJsonPtr operator()(int index) const;
    int ArrayCount() const;

private:
    std::shared_ptr<IElementValueBase> m_node;
};

/// A strict node: a value is read with the type that it was written with, and with no other. To
/// read or write a key with a type that was not agreed on is noted as a fault.
class IElementValueBase
{
public:
    enum class Form { Object, Array, Scalar };
    using Scalar = std::variant<bool, OdInt32, OdInt64, OdString, OdAnsiString>;

    bool GetDataB(const char* key, bool fallback = false) const;
    OdInt32 GetDataI(const char* key, OdInt32 fallback = 0) const;
    OdInt64 GetDataL(const char* key, OdInt64 fallback = 0) const;
    OdString GetDataSW(const char* key, const OdString& fallback = OdString()) const;
    VnJsonPtr GetDataJ(const char* key) const;
    void SetDataB(const char* key, bool value);
    void SetDataI(const char* key, OdInt32 value);
    void SetDataL(const char* key, OdInt64 value);
    void SetDataSW(const char* key, const OdString& value);
    void SetDataS(const char* key, const OdAnsiString& utf8);
    void SetDataJ(const char* key, const VnJsonPtr& value);
    int ArrayCount() const { return static_cast<int>(elements.size()); }
    VnJsonPtr operator()(int index) const;

    // What this host has besides, under names of its own.

    explicit IElementValueBase(Form itsForm) : form(itsForm) {}
    explicit IElementValueBase(Scalar value) : form(Form::Scalar), scalar(std::move(value)) {}
    /// The member that a path leads to, whatever it is; empty where there is none.
    VnJsonPtr member(const char* path) const;
    /// Hangs in a member without a look at its type; an empty one takes the key away.
    void hang(const char* path, const VnJsonPtr& value);
    VnJsonPtr copy() const;
    void clear();

    Form form;
    Scalar scalar;
    std::vector<std::pair<std::string, VnJsonPtr>> members;
    std::vector<VnJsonPtr> elements;

private:
    template <class T>
    T read(const char* path, int type, const T& fallback) const;
    void write(const char* path, int type, const VnJsonPtr& value);
};

class ElementValue
{
public:
    static VnJsonPtr createObject(int room);
};

// Texts.
QString vnutOdStringToQString(const OdString& text);
OdString vnutQStringToOdString(const QString& text);
bool vnsiutWcMatchEx(const OdString& text, const OdString& pattern, bool ignoreCase);
OdString formatColor(const OdCmColor& color, const OdArray<ODCOLORREF>& table, OdDbObjectId layer);

// Services, and the thread of the user interface.
void vn_arbitDict_regservice(const OdString& name, const OdRxObjectPtr& service);
OdRxObjectPtr vn_arbitDict_getservice(const OdString& name);
void vn_arbitDict_clearservice(const OdString& name);
void vnedPushUIScrap(int id);
void vnedPopUIScrap(int id);
bool vnedIsRunningInUI();
bool vnedIsRunningInCommand();

// Dialogs.
class VnUiDialogInvoker : public OdRxObject
{
    OTHER_DECLARE_CLASS(VnUiDialogInvoker, OdRxObject)
    virtual void invoke(VnJsonPtr) {}
};

class VnUiDialogBase : public OdRxObject
{
    OTHER_DECLARE_CLASS(VnUiDialogBase, OdRxObject)
    virtual int setData(VnJsonPtr data, OdRxObjectPtr invoker) = 0;
};

class VnUiModeDialogBase : public VnUiDialogBase
{
    OTHER_DECLARE_CLASS(VnUiModeDialogBase, VnUiDialogBase)
    virtual int doModal() = 0;
};

using VnUiModeDialogBasePtr = OdSmartPtr<VnUiModeDialogBase>;

class VnUiService : public OdRxObject
{
    OTHER_DECLARE_CLASS(VnUiService, OdRxObject)
    virtual VnUiModeDialogBasePtr dialogOf(const OdString& name) = 0;
};

VnJsonPtr vnuiShowModelDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
VnJsonPtr vnuiShowModelDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree);
void* vnuiCurTargetWindow();
QWidget* qt_windowHandle_to_widget(void* handle);

// Questions.
int vnuiMessageBox(const OdString& text, const OdString& caption, int style);
VnJsonPtr vnuiMessageBoxEx(const OdString& caption, const OdString& text, const VnJsonPtr& options,
    int style, int code, int icon);

class CVnUiTaskDialog
{
public:
    void SetWindowTitle(const OdString&) {}
    void SetMainInstruction(const OdString&) {}
    void AddCommandControl(int id, const OdString&) { m_ids.push_back(id); }
    int DoModal();

private:
    std::vector<int> m_ids;
};

// Settings.
VnJsonPtr vn_user_config(const OdString& section);
OdInt16 getVar(const OdString& name);

// Result buffers.
struct VnText
{
    VnText* next;
    const wchar_t* text;
};

VnText* vnsiutNewRb(int type);
wchar_t* vnsiutNewString(const OdString& text);

// Pickers.
class VnColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnColorComboBox(QWidget* parent = nullptr);
    OdCmColor GetCurrentColorEx() const;
    int FindColor(const OdCmColor& color) const;
    int AppendColorItem(const OdCmColor& color);

private:
    std::vector<OdCmColor> m_colors;
};

class VnLineTypeComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineTypeComboBox(QWidget* parent = nullptr);
    OdString getCurrentLineTypeString() const;
    OdDbObjectId getCurrentLineType() const { return {}; }
};

class VnLineWidthComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineWidthComboBox(QWidget* parent = nullptr);
    int GetCurrentLineWeight() const { return currentIndex(); }
};

} // namespace vnsi

#pragma GCC visibility pop
