#pragma once

// The whole interface of this host in one header. The names of the real headers all lead here.

#include "platform.h"

#include <QComboBox>
#include <QVector>

#include <functional>
#include <map>
#include <memory>
#include <variant>

#pragma GCC visibility push(default)

namespace vnsi {

class IElementValueBase;

/// A shared handle to one node of a value tree, or an empty handle.
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

/// A strict node: a value can only be read with the type that it was written with. Reading or
/// writing a key with a type that was not agreed is recorded as a fault.
class IElementValueBase
{
public:
    enum class Form { Object, Array, Scalar };
    /// The alternatives are in the order of `contract::Type`.
    using Scalar = std::variant<bool, OdInt32, OdInt64, OdString, OdAnsiString>;

    bool GetDataB(const char* key, bool other = false) const { return read(key, other); }
    OdInt32 GetDataI(const char* key, OdInt32 other = 0) const { return read(key, other); }
    OdInt64 GetDataL(const char* key, OdInt64 other = 0) const { return read(key, other); }
    OdString GetDataSW(const char* key, const OdString& other = {}) const
    {
        return read(key, other);
    }
    VnJsonPtr GetDataJ(const char* key) const;
    void SetDataB(const char* key, bool value) { write(key, value); }
    void SetDataI(const char* key, OdInt32 value) { write(key, value); }
    void SetDataL(const char* key, OdInt64 value) { write(key, value); }
    void SetDataSW(const char* key, const OdString& value) { write(key, value); }
    void SetDataS(const char* key, const OdAnsiString& value) { write(key, value); }
    void SetDataJ(const char* key, const VnJsonPtr& value);
    int ArrayCount() const { return static_cast<int>(elements.size()); }
    VnJsonPtr operator()(int index) const;

    // Additional functions of this host, under its own names.

    explicit IElementValueBase(Form itsForm) : form(itsForm) {}
    explicit IElementValueBase(Scalar value) : form(Form::Scalar), scalar(std::move(value)) {}
    /// The member at a path, whatever its type; empty when there is none.
    VnJsonPtr member(const char* path) const;
    /// Sets a member without checking its type; an empty handle removes the key.
    void hang(const char* path, const VnJsonPtr& value);
    VnJsonPtr copy() const;
    void clear();
    template <class T>
    T valueOr(const T& fallback) const
    {
        const T* const value = std::get_if<T>(&scalar);
        return value && form == Form::Scalar ? *value : fallback;
    }

    Form form;
    Scalar scalar;
    std::map<std::string, VnJsonPtr> members;
    std::vector<VnJsonPtr> elements;

private:
    static void checkRead(const char* path, int type);
    template <class T>
    T read(const char* path, const T& fallback) const
    {
        checkRead(path, 1 << Scalar(fallback).index());
        const VnJsonPtr found = member(path);
        return found ? found->valueOr(fallback) : fallback;
    }
    void write(const char* path, const Scalar& value);
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

// Services and the user-interface thread.
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
    // As commands override it. NOLINTNEXTLINE(performance-unnecessary-value-param)
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
public:
    explicit VnColorComboBox(QWidget* parent);
    OdCmColor GetCurrentColorEx() const { return m_colors.value(currentIndex()); }
    int FindColor(const OdCmColor& color) const;
    int AppendColorItem(const OdCmColor& color);

private:
    QVector<OdCmColor> m_colors;
};

class VnLineTypeComboBox : public QComboBox
{
public:
    explicit VnLineTypeComboBox(QWidget* parent) : QComboBox(parent)
    {
        addItems({"ByLayer", "ByBlock", "Continuous", "DASHED"});
    }
    OdString getCurrentLineTypeString() const { return vnutQStringToOdString(currentText()); }
    OdDbObjectId getCurrentLineType() const { return {}; }
};

class VnLineWidthComboBox : public QComboBox
{
public:
    explicit VnLineWidthComboBox(QWidget* parent) : QComboBox(parent)
    {
        addItems(
            {QStringLiteral("随层"), QStringLiteral("随块"), QStringLiteral("默认"), "0.25 mm"});
    }
    int GetCurrentLineWeight() const { return currentIndex(); }
};

} // namespace vnsi

/// What the interface leaves to each host.
namespace hostextras {

using vnsi::IElementValueBase;
using vnsi::VnJsonPtr;

/// Makes a separate node that holds `value`.
VnJsonPtr scalarOf(IElementValueBase::Scalar value);
VnJsonPtr createArray(int capacity);

inline void append(const VnJsonPtr& array, const VnJsonPtr& node)
{
    array->elements.push_back(node);
}

inline void appendInt(const VnJsonPtr& array, OdInt32 value)
{
    append(array, scalarOf(value));
}

inline void appendText(const VnJsonPtr& array, const OdString& value)
{
    append(array, scalarOf(value));
}

inline void removeItem(const VnJsonPtr& array, int index)
{
    array->elements.erase(array->elements.begin() + index);
}

inline OdInt32 intOf(const VnJsonPtr& element, OdInt32 fallback)
{
    return element->valueOr(fallback);
}

inline OdString textOf(const VnJsonPtr& element)
{
    return element->valueOr(OdString());
}

inline VnJsonPtr copyOf(const VnJsonPtr& node)
{
    return node->copy();
}

inline void removeKey(IElementValueBase& object, const char* key)
{
    object.hang(key, {});
}

inline std::string jsonOf(const VnJsonPtr&)
{
    return "{}";
}

inline OdInt64 numberOf(const OdDbObjectId&)
{
    return 0;
}

OdArray<ODCOLORREF> currentColorTable(const OdRxObjectPtr& documentManager);
void callHelp(const OdRxObjectPtr& editPrimitiveServer, int topic);

/// Posts work to the user-interface thread. The work is done when its status is first asked for.
struct UiProxy
{
};

UiProxy* currentProxy(const OdRxObjectPtr& requestServer);
inline int scrapId(const UiProxy&)
{
    return 7;
}
OdRxObjectPtr makeRequest(const std::function<void()>& work);
int post(UiProxy& proxy, const OdString& name, const OdRxObjectPtr& request);
inline int serviceReply(UiProxy&)
{
    return -5019;
}

using ResultBuffer = vnsi::VnText;

inline void setText(ResultBuffer& node, wchar_t* text)
{
    node.text = text;
}

inline void setNext(ResultBuffer& node, ResultBuffer* next)
{
    node.next = next;
}

class DialogService : public vnsi::VnUiService
{
public:
    virtual vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) = 0;
    vnsi::VnUiModeDialogBasePtr dialogOf(const OdString& name) final { return makeDialog(name); }
};

} // namespace hostextras

#pragma GCC visibility pop
