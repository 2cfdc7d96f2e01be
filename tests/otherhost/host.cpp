#include "contract.h"
#include "dialogsamples.h"
#include "otherhost.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegExp>
#include <QThread>

#include <algorithm>

using namespace otherhost;

namespace {

QHash<QString, OdRxObjectPtr>& services()
{
    static QHash<QString, OdRxObjectPtr> all;
    return all;
}

OtherHost& host()
{
    return OtherHost::instance();
}

QString text(const OdString& wide)
{
    return vnsi::vnutOdStringToQString(wide);
}

/// The services "Core/...", which this host uses by name alone.
class CoreService : public OdRxObject
{
    OTHER_DECLARE_CLASS(CoreService, OdRxObject)
};

class Work : public OdRxObject
{
    OTHER_DECLARE_CLASS(Work, OdRxObject)
    explicit Work(std::function<void()> itsWork) : work(std::move(itsWork)) {}
    const std::function<void()> work;
};

QStringList wordsOf(const char* words)
{
    return QString::fromLatin1(words).split(' ', Qt::SkipEmptyParts);
}

vnsi::VnJsonPtr memberOf(const vnsi::IElementValueBase& node, const QString& path)
{
    return node.member(path.toLatin1().constData());
}

void hangAll(vnsi::IElementValueBase& node, const QString& json)
{
    const vnsi::VnJsonPtr values = treeOf(json);
    for (const auto& [key, value] : values->members)
        node.hang(key.c_str(), value);
}

class Command : public vnsi::VnUiDialogInvoker
{
public:
    void invoke(vnsi::VnJsonPtr tree) override { host().answerRequest(tree); }
};

} // namespace

OdAnsiString OdStringToUtf8String(const OdString& wide)
{
    return text(wide).toUtf8().constData();
}

namespace vnsi {

QString vnutOdStringToQString(const OdString& wide)
{
    return QString::fromWCharArray(wide.c_str());
}

OdString vnutQStringToOdString(const QString& text)
{
    return text.toStdWString().c_str();
}

bool vnsiutWcMatchEx(const OdString& name, const OdString& pattern, bool ignoreCase)
{
    const auto letterCase = ignoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return QRegExp(text(pattern), letterCase, QRegExp::WildcardUnix).exactMatch(text(name));
}

OdString formatColor(const OdCmColor& color, const OdArray<ODCOLORREF>&, OdDbObjectId)
{
    return host().may(kNoColorText) ? OdString()
                                    : vnutQStringToOdString(QString::number(color.colorIndex()));
}

void vn_arbitDict_regservice(const OdString& name, const OdRxObjectPtr& service)
{
    services().insert(text(name), service);
}

OdRxObjectPtr vn_arbitDict_getservice(const OdString& name)
{
    if (!text(name).startsWith("Core/"))
        return services().value(text(name));
    if (host().may(kNoServices))
        return {};
    if (host().may(kOddServices))
        return OdRxObjectImpl<Work>::createObject(nullptr);
    return OdRxObjectImpl<CoreService>::createObject();
}

void vn_arbitDict_clearservice(const OdString& name)
{
    services().remove(text(name));
}

void vnedPushUIScrap(int) {}
void vnedPopUIScrap(int) {}

bool vnedIsRunningInUI()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

bool vnedIsRunningInCommand()
{
    return true;
}

VnJsonPtr vnuiShowModelDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget*)
{
    return host().show(serviceName, dialogName, tree, invoker);
}

VnJsonPtr vnuiShowModelDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree)
{
    return host().show(serviceName, dialogName, tree, {});
}

void* vnuiCurTargetWindow()
{
    static auto* const window = new QWidget; // It exists until the program ends.
    return host().may(kWindow) ? window : nullptr;
}

QWidget* qt_windowHandle_to_widget(void* handle)
{
    return static_cast<QWidget*>(handle);
}

int vnuiMessageBox(const OdString&, const OdString&, int style)
{
    return host().press(style);
}

VnJsonPtr vnuiMessageBoxEx(
    const OdString&, const OdString&, const VnJsonPtr&, int style, int, int icon)
{
    const int button = host().press(style | icon);
    if (host().may(kEmptyAnswers))
        return {};
    VnJsonPtr answer = ElementValue::createObject(1);
    answer->SetDataI("ControlBtn", button);
    return answer;
}

int CVnUiTaskDialog::DoModal()
{
    const int answer = host().press(4);
    return m_ids.at(answer == 6 ? 0 : 1);
}

VnJsonPtr vn_user_config(const OdString& section)
{
    if (host().may(kNoSettings))
        return {};
    VnJsonPtr settings = ElementValue::createObject(0);
    for (const char* key : {"isRefLayerCBox", "isWCheckBox", "isTCheckBox", "IsExpand",
             "RecoverBoxChecked", "FilterComboBoxList", "LtransSettingDates"}) {
        if (host().may(kOddSettings))
            settings->hang(key, hostextras::scalarOf(section));
    }
    return settings;
}

OdInt16 getVar(const OdString&)
{
    return host().may(kOddSettings) ? 1 : 0;
}

VnText* vnsiutNewRb(int)
{
    return new VnText{};
}

wchar_t* vnsiutNewString(const OdString& text)
{
    return wcsdup(text.c_str());
}

VnColorComboBox::VnColorComboBox(QWidget* parent) : QComboBox(parent)
{
    for (OdInt16 index = 1; index < 8; ++index) {
        OdCmColor color;
        color.setColorMethod(OdCmColor::kByACI);
        color.setColorIndex(index);
        AppendColorItem(color);
    }
}

int VnColorComboBox::FindColor(const OdCmColor& color) const
{
    for (int i = 0; i < m_colors.size(); ++i) {
        const OdCmColor& one = m_colors[i];
        if (one.colorMethod() == color.colorMethod() && one.colorIndex() == color.colorIndex() &&
            one.red() == color.red())
            return i;
    }
    return -1;
}

int VnColorComboBox::AppendColorItem(const OdCmColor& color)
{
    m_colors.push_back(color);
    addItem(QString::number(color.colorIndex()));
    return count() - 1;
}

} // namespace vnsi

OdArray<ODCOLORREF> hostextras::currentColorTable(const OdRxObjectPtr&)
{
    return {};
}

void hostextras::callHelp(const OdRxObjectPtr& server, int topic)
{
    if (CoreService::cast(server.get()))
        host().note(QStringLiteral("help %1").arg(topic));
}

hostextras::UiProxy* hostextras::currentProxy(const OdRxObjectPtr& server)
{
    static UiProxy proxy;
    return CoreService::cast(server.get()) ? &proxy : nullptr;
}

OdRxObjectPtr hostextras::makeRequest(const std::function<void()>& work)
{
    return OdRxObjectImpl<Work>::createObject(work);
}

int hostextras::post(UiProxy&, const OdString& name, const OdRxObjectPtr& request)
{
    if (text(name) != "proxyRequest")
        host().fault("posts " + text(name));
    QMetaObject::invokeMethod(QCoreApplication::instance(), Work::cast(request.get())->work,
        Qt::BlockingQueuedConnection);
    return -5018;
}

namespace otherhost {

OtherHost& OtherHost::instance()
{
    static OtherHost one;
    return one;
}

void OtherHost::fault(const QString& text)
{
    const QString line = dialogName + ": " + text;
    if (!faults.contains(line))
        faults.append(line);
}

void OtherHost::note(const QString& question)
{
    asked.append(question);
    seen.insert(question);
}

/// The button that the user presses: the one that continues, or the one that refuses.
int OtherHost::press(int style)
{
    constexpr int kAnswers[][3] = {{0, 1, 1}, {1, 1, 2}, {4, 6, 7}, {6, 0, 3}};
    note(QStringLiteral("box %1").arg(style));
    if (mischief && mischief->questions)
        mischief->questions(root);
    for (const auto& [buttons, yes, no] : kAnswers) {
        if ((style & 15) == buttons)
            return may(kSaysNo) ? no : yes;
    }
    fault(QStringLiteral("asks with style %1").arg(style));
    return 0;
}

vnsi::VnJsonPtr OtherHost::show(const OdString& service, const OdString& name,
    const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& command)
{
    note(text(name));
    const auto* const question = contract::findQuestion(text(service), text(name));
    if (!question) {
        fault("shows " + text(service) + ", " + text(name));
        return {};
    }
    for (const QString& key : wordsOf(question->keys)) {
        if (!tree || !memberOf(*tree, key))
            fault(text(name) + " is shown without " + key);
    }
    if (tree && tree->member("result"))
        fault(text(name) + " is shown with an earlier result");
    if (mischief && mischief->questions)
        mischief->questions(root);
    if (may(kEmptyAnswers))
        return {};
    vnsi::VnJsonPtr answer = tree ? tree : vnsi::ElementValue::createObject(0);
    int result = may(kSaysNo) ? 0 : 1;
    if (may(kRealDialogs) && text(service) == "Dialog/CmdLayer") {
        const QString outer = std::exchange(dialogName, text(name));
        const auto maker = vnsi::VnUiService::cast(vnsi::vn_arbitDict_getservice(service).get());
        const vnsi::VnUiModeDialogBasePtr shown = maker->dialogOf(name);
        shown->setData(tree, command);
        result = shown->doModal();
        dialogName = outer;
    } else if (result) {
        hangAll(*answer, answerOfDialog(text(name)));
    }
    answer->hang("result", hostextras::scalarOf(result));
    return answer;
}

void OtherHost::answerRequest(const vnsi::VnJsonPtr& tree)
{
    checkRequest(*tree);
    if (mischief && mischief->command)
        mischief->command(tree);
    else
        answer(tree);
}

void OtherHost::answer(const vnsi::VnJsonPtr& tree)
{
    if (const auto* const request = contract::findRequest(dialogName, codeOf(*tree)))
        hangAll(*tree, QString::fromUtf8(request->answer));
}

int OtherHost::codeOf(const vnsi::IElementValueBase& tree) const
{
    const vnsi::VnJsonPtr code = tree.member(contract::codeKeyOf(dialogName));
    return code ? code->valueOr(-1) : -1;
}

void OtherHost::checkRequest(const vnsi::IElementValueBase& tree)
{
    const QString name = QStringLiteral("request %1").arg(codeOf(tree));
    note(dialogName + ' ' + name);
    const auto* const request = contract::findRequest(dialogName, codeOf(tree));
    if (!request)
        return fault("unknown " + name);

    const vnsi::VnJsonPtr parameter = tree.member("parameter");
    const bool isTree = parameter && parameter->form == vnsi::IElementValueBase::Form::Object;
    const QString said = isTree ? "tree" : QString::number(parameter ? parameter->valueOr(-1) : -1);
    if (said != QLatin1String(request->parameter))
        fault(name + " has the parameter " + said);
    for (const QString& keys : wordsOf(request->arguments)) {
        const QStringList any = keys.split('|');
        if (!may(kTakesArguments) && std::none_of(any.begin(), any.end(),
                                         [&](const QString& key) { return memberOf(tree, key); }))
            fault(name + " lacks " + keys);
    }
    for (const QString& key : wordsOf(request->answers)) {
        const vnsi::VnJsonPtr left = memberOf(tree, key);
        if (left && left->valueOr(true))
            fault(name + " leaves an earlier " + key);
    }
    const QStringList inList = wordsOf(request->inList);
    if (!inList.isEmpty())
        checkRecords(memberOf(tree, inList[0]), inList[1], name);
}

/// Checks that each record of a list has the key.
void OtherHost::checkRecords(const vnsi::VnJsonPtr& list, const QString& key, const QString& name)
{
    for (const vnsi::VnJsonPtr& record : list ? list->elements : std::vector<vnsi::VnJsonPtr>()) {
        if (record && record->form == vnsi::IElementValueBase::Form::Object &&
            !memberOf(*record, key))
            fault(name + " has a record without " + key);
    }
}

OdRxObjectPtr makeCommand(bool isDumb)
{
    if (isDumb)
        return OdRxObjectImpl<vnsi::VnUiDialogInvoker>::createObject();
    return OdRxObjectImpl<Command>::createObject();
}

} // namespace otherhost
