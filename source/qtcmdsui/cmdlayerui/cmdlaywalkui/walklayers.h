#pragma once

#include "hostapi/hosttree.h"
#include "layerrecord.h"

#include <QString>

#include <optional>
#include <vector>

namespace vnsi {

/// What a place in the request held when it was last looked at. It tells where a command put other
/// layers: a new tree, a new list in the tree, or more or fewer records in the list.
struct LayerTreeMark
{
    LayerTreeMark() = default;
    explicit LayerTreeMark(const VnJsonPtr& at);

    VnJsonPtr tree;
    VnJsonPtr list;
    int count = 0;
};

inline bool operator!=(const LayerTreeMark& a, const LayerTreeMark& b)
{
    return !hostapi::isSameNode(a.tree, b.tree) || !hostapi::isSameNode(a.list, b.list) ||
           a.count != b.count;
}

/// The layers a walk goes through: a copy of the tree that is the dialog's own.
///
/// What is pinned is never turned off, whoever asks for it. Changes can be taken back until they
/// are settled.
class WalkLayers
{
public:
    /// A yes or no for each record, in their order.
    using Choice = std::vector<bool>;
    static bool holdsAny(const Choice& choice);

    /// Copies the tree; without one, or without a list in it, there are no layers.
    void take(const VnJsonPtr& layers);

    const VnJsonPtr& tree() const { return m_tree; }
    int count() const { return static_cast<int>(m_firstOfName.size()); }
    LayerRecord record(int index) const { return LayerRecord(hostapi::item(m_list, index)); }
    const OdString& name(int index) const { return m_names[static_cast<std::size_t>(index)]; }
    /// Of the record that was the current layer's when the tree came; empty when there is none.
    OdString currentName() const;
    bool isPinned(int index) const;
    bool isVisible(int index) const;
    Choice choiceOf(bool (WalkLayers::*question)(int index) const) const;
    Choice matching(const OdString& pattern) const;
    /// Those with one of these names, an array of texts; letter case does not count.
    Choice named(const VnJsonPtr& names) const;
    /// Neither layer 0 nor the current layer.
    bool mayBePurged(const OdString& name) const;
    bool isUnused(int index) const { return !record(index).isUsed(); }

    void setOff(int index, bool off);
    /// Turns the layer off and marks it as changed, though it was off before.
    void turnOff(int index);
    void setPinned(int index, bool pinned);
    /// Turns the chosen layers, and others of the same names, on and the rest off. The current
    /// layer's record says then whether it stayed.
    void showOnly(const Choice& chosen);
    /// Makes the current layer's record say so again; false when it does.
    bool restoreCurrent();
    void markModified() { m_tree->SetDataB(layerkey::kModified, true); }
    /// The changes since the last call stay.
    void settle();
    /// Undoes them.
    void takeBack();

private:
    struct FlagChange
    {
        int index;
        const char* key;
        bool before;
    };

    void setFlag(int index, const char* key, bool value);
    void setCurrentShown(bool shown);

    VnJsonPtr m_tree;
    VnJsonPtr m_list;
    std::vector<FlagChange> m_changes;
    std::optional<int> m_statusBefore; ///< Of the current layer's record, where that changed.
    std::vector<OdString> m_names;     ///< The walk changes none, and reads them often.
    std::vector<int> m_firstOfName;    ///< For each record the first one of its name.
    int m_current = -1;
};

} // namespace vnsi
