#include "dialogpresser.h"
#include "otherhost.h"

#include <QEventLoop>
#include <QTimer>

#include <stdexcept>
#include <utility>

using namespace otherhost;
using vnsi::IElementValueBase;
using vnsi::VnJsonPtr;

namespace {

using Form = IElementValueBase::Form;

OtherHost& host()
{
    return OtherHost::instance();
}

template <class Error>
void raise(const VnJsonPtr&)
{
    throw Error{};
}

struct Broken : std::runtime_error
{
    Broken() : std::runtime_error("broken") {}
};

/// The nodes that the dialog may read: those of its own tree and those of the request.
std::vector<VnJsonPtr> reachable(const VnJsonPtr& asked)
{
    std::vector<VnJsonPtr> all = nodesIn(host().root);
    for (const VnJsonPtr& node : nodesIn(asked))
        all.push_back(node);
    return all;
}

/// Answers as agreed and then changes every member of the given name.
Change changing(const char* key, std::function<VnJsonPtr(const VnJsonPtr& member)> changed)
{
    return [key, changed = std::move(changed)](const VnJsonPtr& asked) {
        host().answer(asked);
        for (const VnJsonPtr& node : reachable(asked)) {
            if (const VnJsonPtr member = node->member(key))
                node->hang(key, changed(member));
        }
    };
}

VnJsonPtr emptied(const VnJsonPtr& member)
{
    member->clear();
    return member;
}

VnJsonPtr filledWithOthers(const VnJsonPtr& member)
{
    member->elements.assign(5, vnsi::ElementValue::createObject(0));
    member->elements.emplace_back();
    member->elements.push_back(hostextras::scalarOf(OdString(L"?")));
    return member;
}

VnJsonPtr sharedList(const VnJsonPtr&)
{
    static const VnJsonPtr list = hostextras::createArray(1);
    list->elements = {vnsi::ElementValue::createObject(0)};
    return list;
}

/// The same value with another type: bools become numbers, wide texts become narrow.
VnJsonPtr ofOtherType(const VnJsonPtr& value)
{
    constexpr int kBool = 0, kInt = 1;
    if (value->form != Form::Scalar)
        return hostextras::scalarOf(OdString(L"no tree"));
    const auto kind = value->scalar.index();
    if (kind == kBool)
        return hostextras::scalarOf(1);
    if (kind == kInt)
        return hostextras::scalarOf(OdInt64{1});
    return hostextras::scalarOf(OdAnsiString("narrow"));
}

void answerInOtherTypes(const VnJsonPtr& asked)
{
    host().answer(asked);
    for (const VnJsonPtr& node : reachable(asked)) {
        for (auto& member : node->members) {
            if (member.second->form == Form::Scalar || node == asked)
                member.second = ofOtherType(member.second);
        }
    }
}

void emptyRoot(const VnJsonPtr& asked)
{
    host().root->clear();
    asked->clear();
}

void emptyAll(const VnJsonPtr& asked)
{
    for (const VnJsonPtr& node : reachable(asked))
        node->clear();
}

/// Lets the user continue to click in the dialog while the command works.
void letUserClick(const VnJsonPtr& asked)
{
    static int deep = 0;
    constexpr int kClicks = 5;
    if (deep < 2 && host().window) {
        ++deep;
        QEventLoop loop;
        int clicks = kClicks;
        std::function<void()> clickOne = [&] {
            if (!host().window || --clicks < 0)
                return loop.quit();
            const auto acts = actsIn(*host().window);
            QTimer::singleShot(0, &loop, clickOne);
            acts[static_cast<std::size_t>(host().asked.size() * 7 + clicks * 13) % acts.size()]();
        };
        QTimer::singleShot(0, &loop, clickOne);
        loop.exec();
        --deep;
    }
    host().answer(asked);
}

void answerLate(const VnJsonPtr& asked)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        host().answer(asked);
        loop.quit();
    });
    loop.exec();
}

void closeDialog(const VnJsonPtr& asked)
{
    host().answer(asked);
    if (host().window)
        host().window->close();
}

void releaseDialog(const VnJsonPtr& asked)
{
    host().dialog = nullptr;
    host().answer(asked);
}

std::vector<Mischief> makeMischiefs()
{
    std::vector<Mischief> all = {
        {"shows the module's own dialogs", kEverything | kRealDialogs | kWindow},
        {"says no", kEverything | kSaysNo},
        {"gives back empty handles", kEmptyAnswers},
        {"has no settings", kNoSettings},
        {"has settings of other types", kOddSettings},
        {"has no services", kNoServices},
        {"has services of other classes", kOddServices},
        {"has no names of colours", kNoColorText},
        {"hands over no tree", kEverything | kNoTree},
        {"has no command", kEverything | kNoCommand},
        {"has a dumb command", kDumbCommand},
        {"lets go on another thread", kOtherThread},
        {"throws from questions", 0, {}, raise<Broken>},
        {"throws a number from questions", 0, {}, raise<int>},
        {"throws the platform's error from questions", 0, {}, raise<OdError>},
        {"throws from commands", 0, raise<Broken>},
        {"throws a number from commands", 0, raise<int>},
        {"throws the platform's error from commands", 0, raise<OdError>},
        {"throws from both", 0, raise<Broken>, raise<Broken>},
        {"answers nothing", 0, [](const VnJsonPtr&) {}},
        {"answers in other types", 0, answerInOtherTypes},
        {"empties the root", 0, emptyRoot},
        {"empties everything", 0, emptyAll},
        {"lets the user click", 0, letUserClick},
        {"answers late", 0, answerLate},
        {"closes the dialog", 0, closeDialog},
        {"lets go of the dialog", 0, releaseDialog},
        {"empties everything from questions", kTakesArguments, {}, emptyAll},
    };
    constexpr struct
    {
        const char* name;
        VnJsonPtr (*change)(const VnJsonPtr&);
    } kChanges[] = {{"replaces", [](const VnJsonPtr& member) { return member->copy(); }},
        {"removes", [](const VnJsonPtr&) { return VnJsonPtr(); }},
        {"makes a number of", [](const VnJsonPtr&) { return hostextras::scalarOf(1 << 30); }},
        {"empties", emptied}, {"fills with others", filledWithOthers},
        {"shares one list as", sharedList}};
    static std::vector<std::string> names; // The rows point to these texts.
    names.reserve(32);
    for (const auto& [name, change] : kChanges) {
        for (const char* key : {"LayerStateMgr", "LayerList", "LayerStateList", "parameter"}) {
            names.push_back(std::string(name) + ' ' + key);
            all.push_back({names.back().c_str(), 0, changing(key, change), {}, key});
        }
    }
    return all;
}

} // namespace

const std::vector<Mischief>& otherhost::mischiefs()
{
    static const std::vector<Mischief> all = makeMischiefs();
    return all;
}
