#include "hostapi/filequestion.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "vnqtfiledialog.h"
#include "vnstrings.h"

#include <algorithm>
#include <string>

namespace vnsi {

namespace {

constexpr wchar_t kCommonService[] = L"Dialog/Common";
constexpr wchar_t kFileDialog[] = L"FileDialogBox";
constexpr wchar_t kNavigationDialog[] = L"FileNavDialogBox";

// Two of the keys have an agreed, unusual spelling.
constexpr char kTitle[] = "title";
constexpr char kDefaultName[] = "defawlt";
constexpr char kCaption[] = "caption";
constexpr char kDialogName[] = "dlgname";
constexpr char kOpens[] = "Open";
constexpr char kSeveral[] = "MutiFile";
constexpr char kFilter[] = "filter";
constexpr char kFirstFilter[] = "defFilter";
constexpr char kPlace[] = "dir";
constexpr char kFlags[] = "flags";

constexpr int kSaveFlag = 0x1;
constexpr int kSeveralFlag = 0x1000;
constexpr int kStringType = 5005;

/// Converts the ";" between patterns, which callers use, to the blanks that the host expects.
OdString hostFilter(const OdString& filter)
{
    std::wstring text(filter.c_str());
    std::replace(text.begin(), text.end(), L';', L' ');
    return OdString(text.c_str());
}

VnJsonPtr makeQuestion(const OdString& title, const OdString& defaultName, const OdString& filter)
{
    VnJsonPtr question = hostapi::makeObject();
    hostapi::Members(question)
        .set(kTitle, title)
        .set(kDefaultName, defaultName)
        .set(kFilter, hostFilter(filter));
    return question;
}

VnJsonPtr show(const wchar_t* dialogName, const VnJsonPtr& question, QWidget* parent)
{
    return hostapi::showDialogEx(
        kCommonService, dialogName, question, {}, parent ? parent : hostapi::currentWindow());
}

/// Builds the list of chosen paths by appending to its end.
class PathList
{
public:
    void append(const OdString& path)
    {
        hostextras::ResultBuffer* const node = path.isEmpty() ? nullptr : makeNode(path);
        if (!node)
            return;
        if (m_last)
            hostextras::setNext(*m_last, node);
        else
            m_first = node;
        m_last = node;
    }
    hostextras::ResultBuffer* first() const { return m_first; }

private:
    static hostextras::ResultBuffer* makeNode(const OdString& path)
    {
        hostextras::ResultBuffer* const node = vnsiutNewRb(kStringType);
        if (node)
            hostextras::setText(*node, vnsiutNewString(path));
        return node;
    }

    hostextras::ResultBuffer* m_first = nullptr;
    hostextras::ResultBuffer* m_last = nullptr;
};

hostextras::ResultBuffer* chosenPaths(const IElementValueBase& answer, bool several)
{
    PathList list;
    const VnJsonPtr paths = several ? answer.GetDataJ("filePaths") : VnJsonPtr();
    for (int i = 0, count = hostapi::count(paths); i < count; ++i)
        list.append(hostapi::textAt(paths, i));
    if (!list.first())
        list.append(answer.GetDataSW("filePath"));
    return list.first();
}

} // namespace

VnJsonPtr makeFileQuestion(const FileQuestion& question)
{
    VnJsonPtr tree = hostapi::makeObject();
    tree->SetDataS(kCaption, question.caption.toUtf8().constData());
    hostapi::Members(tree)
        .set(kFilter, vnutQStringToOdString(question.filter))
        .set(kOpens, question.opens)
        .set(kSeveral, question.several)
        .set(kFirstFilter, vnutQStringToOdString(question.firstFilter));
    return tree;
}

void setStartPlace(const VnJsonPtr& question, const OdString& place)
{
    hostapi::Members(question).set(kPlace, place);
}

VnJsonPtr askForFile(const VnJsonPtr& question, QWidget* parent)
{
    const VnJsonPtr answer = show(kFileDialog, question, parent);
    return answer->GetDataI("result") == kVnAnswerOk ? answer : VnJsonPtr();
}

int vnqtGetFileName(const OdString& title, const OdString& defaultName, const OdString& filter,
    int flags, OdString& path, QWidget* parent)
{
    const VnJsonPtr question = makeQuestion(title, defaultName, filter);
    question->SetDataI(kFlags, flags);
    const VnJsonPtr answer = show(kFileDialog, question, parent);
    const int result = answer->GetDataI("result");
    if (result == kVnAnswerOk)
        path = answer->GetDataSW("filePath");
    return result;
}

int vnqtGetNavFileName(const OdString& title, const OdString& defaultName, const OdString& caption,
    const OdString& dialogName, const OdString& filter, int flags, hostextras::ResultBuffer*& paths,
    QWidget* parent)
{
    const bool several = flags & kSeveralFlag;
    const VnJsonPtr question = makeQuestion(title, defaultName, filter);
    hostapi::Members(question)
        .set(kCaption, caption)
        .set(kDialogName, dialogName)
        .set(kOpens, !(flags & kSaveFlag))
        .set(kSeveral, several)
        .set(kFlags, flags);
    const VnJsonPtr answer = show(kNavigationDialog, question, parent);
    const int result = answer->GetDataI("result");
    if (result == kVnAnswerOk)
        paths = chosenPaths(*answer, several);
    return result;
}

} // namespace vnsi
