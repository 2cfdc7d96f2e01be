#include "walklayers.h"

#include "vnstrings.h"
#include "walkkeys.h"

#include <QSet>

#include <unordered_map>

namespace vnsi {

void WalkLayers::take(const VnJsonPtr& layers)
{
    const bool isTree = layers && layers->kind() == IElementValueBase::Kind::Object;
    m_tree = isTree ? ElementValue::clone(layers) : VnJsonPtr();
    m_list = m_tree ? m_tree->GetDataJ(layerkey::kList) : VnJsonPtr();
    m_current = -1;
    const int count = m_list.ArrayCount();
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
            firsts.emplace(name(i).view(), i).first->second;
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
    return !layer.isOff() && !layer.flag(layerkey::kFrozen) && !layer.flag(layerkey::kVPortFrozen);
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
        choice[static_cast<std::size_t>(i)] = vnsiutWcMatchEx(name(i), pattern, true);
    return choice;
}

WalkLayers::Choice WalkLayers::named(const VnJsonPtr& names) const
{
    const auto key = [](const OdString& name) {
        return vnutOdStringToQString(name).toCaseFolded();
    };
    QSet<QString> wanted;
    for (int i = 0, count = names.ArrayCount(); i < count; ++i)
        wanted.insert(key(names(i)->asSW()));
    Choice choice(m_firstOfName.size());
    for (int i = 0; i < count(); ++i)
        choice[static_cast<std::size_t>(i)] = wanted.contains(key(name(i)));
    return choice;
}

bool WalkLayers::mayBePurged(int index) const
{
    return index != m_current && name(index) != L"0" && name(index) != currentName();
}

void WalkLayers::setOff(int index, bool off)
{
    LayerRecord layer = record(index);
    if (layer.isOff() == off || (off && layer.flag(walkkey::kAlwaysShow)))
        return;
    layer.setFlag(layerkey::kOff, off);
    layer.markModified();
}

void WalkLayers::setPinned(int index, bool pinned)
{
    LayerRecord layer = record(index);
    if (layer.flag(walkkey::kAlwaysShow) == pinned)
        return;
    layer.setFlag(walkkey::kAlwaysShow, pinned);
    layer.markModified();
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
    layer.setStatus(shown ? kLayerCurrent : kLayerOrdinary);
    layer.setFlag(layerkey::kSelected, shown);
    layer.markModified();
}

} // namespace vnsi
