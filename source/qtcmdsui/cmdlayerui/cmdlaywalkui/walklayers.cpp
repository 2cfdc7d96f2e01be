#include "walklayers.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "vnstrings.h"
#include "walkkeys.h"

#include <QSet>

#include <algorithm>
#include <unordered_map>

namespace vnsi {

LayerTreeMark::LayerTreeMark(const VnJsonPtr& at)
    : tree(at),
      list(at ? at->GetDataJ(layerkey::kList) : VnJsonPtr()),
      count(hostapi::count(list))
{
}

bool WalkLayers::holdsAny(const Choice& choice)
{
    return std::find(choice.begin(), choice.end(), true) != choice.end();
}

void WalkLayers::take(const VnJsonPtr& layers)
{
    const bool isTree = hostapi::count(layers) == 0; // An array is not a tree.
    m_tree = isTree ? hostapi::copyOf(layers) : VnJsonPtr();
    m_list = m_tree ? m_tree->GetDataJ(layerkey::kList) : VnJsonPtr();
    m_current = -1;
    settle();
    const int count = hostapi::count(m_list);
    m_names.assign(static_cast<std::size_t>(count), {});
    m_firstOfName.assign(static_cast<std::size_t>(count), 0);
    std::unordered_map<std::wstring, int> firsts;
    firsts.reserve(m_firstOfName.size());
    for (int i = 0; i < count; ++i) {
        const LayerRecord layer = record(i);
        if (layer.isCurrent())
            m_current = i;
        m_names[static_cast<std::size_t>(i)] = layer.name();
        m_firstOfName[static_cast<std::size_t>(i)] =
            firsts.emplace(name(i).c_str(), i).first->second;
    }
}

OdString WalkLayers::currentName() const
{
    return m_current < 0 ? OdString() : name(m_current);
}

bool WalkLayers::isPinned(int index) const
{
    return record(index).flag(walkkey::kAlwaysShow);
}

bool WalkLayers::isVisible(int index) const
{
    const LayerRecord layer = record(index);
    return !layer.isOff() && !layer.isFrozen() && !layer.flag(layerkey::kVPortFrozen);
}

WalkLayers::Choice WalkLayers::choiceOf(bool (WalkLayers::*question)(int index) const) const
{
    Choice choice(m_firstOfName.size());
    for (int i = 0; i < count(); ++i)
        choice[static_cast<std::size_t>(i)] = (this->*question)(i);
    return choice;
}

WalkLayers::Choice WalkLayers::matching(const OdString& pattern) const
{
    Choice choice(m_firstOfName.size());
    for (int i = 0; i < count(); ++i)
        choice[static_cast<std::size_t>(i)] = hostapi::matchesWildcard(name(i), pattern);
    return choice;
}

WalkLayers::Choice WalkLayers::named(const VnJsonPtr& names) const
{
    const auto key = [](const OdString& name) {
        return vnutOdStringToQString(name).toCaseFolded();
    };
    QSet<QString> wanted;
    for (int i = 0, count = hostapi::count(names); i < count; ++i)
        wanted.insert(key(hostapi::textAt(names, i)));
    Choice choice(m_firstOfName.size());
    for (int i = 0; i < count(); ++i)
        choice[static_cast<std::size_t>(i)] = wanted.contains(key(name(i)));
    return choice;
}

bool WalkLayers::mayBePurged(const OdString& name) const
{
    return name != L"0" && name != currentName();
}

void WalkLayers::setFlag(int index, const char* key, bool value)
{
    LayerRecord layer = record(index);
    m_changes.push_back({index, key, layer.flag(key)});
    layer.setFlag(key, value);
}

void WalkLayers::setOff(int index, bool off)
{
    const LayerRecord layer = record(index);
    if (layer.isOff() == off || (off && layer.flag(walkkey::kAlwaysShow)))
        return;
    setFlag(index, layerkey::kOff, off);
    setFlag(index, layerkey::kModified, true);
}

void WalkLayers::turnOff(int index)
{
    setOff(index, true);
    setFlag(index, layerkey::kModified, true);
}

void WalkLayers::setPinned(int index, bool pinned)
{
    if (isPinned(index) == pinned)
        return;
    setFlag(index, walkkey::kAlwaysShow, pinned);
    setFlag(index, layerkey::kModified, true);
}

void WalkLayers::showOnly(const Choice& chosen)
{
    Choice names(chosen.size());
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (chosen[i])
            names[static_cast<std::size_t>(m_firstOfName[i])] = true;
    }
    for (int i = 0; i < count(); ++i)
        setOff(i, !names[static_cast<std::size_t>(m_firstOfName[static_cast<std::size_t>(i)])]);
    if (m_current >= 0)
        setCurrentShown(!record(m_current).isOff());
}

bool WalkLayers::restoreCurrent()
{
    if (m_current < 0 || record(m_current).isCurrent())
        return false;
    setCurrentShown(true);
    return true;
}

void WalkLayers::setCurrentShown(bool shown)
{
    LayerRecord layer = record(m_current);
    if (!m_statusBefore)
        m_statusBefore = layer.status();
    layer.setStatus(shown ? kLayerCurrent : kLayerOrdinary);
    setFlag(m_current, layerkey::kSelected, shown);
    setFlag(m_current, layerkey::kModified, true);
}

void WalkLayers::settle()
{
    m_changes.clear();
    m_statusBefore.reset();
}

void WalkLayers::takeBack()
{
    std::for_each(m_changes.rbegin(), m_changes.rend(), [this](const FlagChange& change) {
        record(change.index).setFlag(change.key, change.before);
    });
    if (m_statusBefore)
        record(m_current).setStatus(*m_statusBefore);
    if (m_tree)
        m_tree->SetDataJ(layerkey::kList, m_list); // The command may have put another list there.
    settle();
}

} // namespace vnsi
