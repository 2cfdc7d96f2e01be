#pragma once

#include "hostapi/hosttree.h"
#include "layerrecord.h"

#include <QString>

#include <optional>
#include <vector>

namespace vnsi {

/// Remembers what a key of the request held when it was last read. Comparing two marks tells
/// whether the command provided other layers: a new tree, a new list in the tree, or another number
/// of records in the list.
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

/// The layers of a walk: the dialog's own copy of the tree.
///
/// Pinned layers are never turned off. Changes can be undone until `settle` is called.
class WalkLayers
{
public:
    /// One flag per record, in the records' order.
    using Choice = std::vector<bool>;
    static bool holdsAny(const Choice& choice);

    /// Copies the tree. Without a tree, or without a list in it, there are no layers.
    void take(const VnJsonPtr& layers);

    const VnJsonPtr& tree() const { return m_tree; }
    int count() const { return static_cast<int>(m_firstOfName.size()); }
    LayerRecord record(int index) const { return LayerRecord(hostapi::item(m_list, index)); }
    const OdString& name(int index) const { return m_names[static_cast<std::size_t>(index)]; }
    /// The name of the layer that was current when the tree was taken; empty when there was none.
    OdString currentName() const;
    bool isPinned(int index) const;
    bool isVisible(int index) const;
    Choice choiceOf(bool (WalkLayers::*question)(int index) const) const;
    Choice matching(const OdString& pattern) const;
    /// The records whose names are in `names`, an array of texts. Letter case is ignored.
    Choice named(const VnJsonPtr& names) const;
    /// Whether the layer may be purged: it is neither layer 0 nor the current layer.
    bool mayBePurged(const OdString& name) const;
    bool isUnused(int index) const { return !record(index).isUsed(); }

    void setOff(int index, bool off);
    /// Turns the layer off and marks it as changed even when it was off before.
    void turnOff(int index);
    void setPinned(int index, bool pinned);
    /// Turns on the chosen layers, and all others of the same names, and turns off the rest.
    /// Afterwards the record of the current layer tells whether that layer is still shown.
    void showOnly(const Choice& chosen);
    /// Marks the record of the current layer as current again. Returns false when it already was.
    bool restoreCurrent();
    void markModified() { m_tree->SetDataB(layerkey::kModified, true); }
    /// Makes the changes since the last call permanent.
    void settle();
    /// Undoes the changes since the last call of `settle`.
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
    /// The former status of the current layer's record, if it was changed.
    std::optional<int> m_statusBefore;
    /// Kept here because they are read often; the walk does not change names.
    std::vector<OdString> m_names;
    std::vector<int> m_firstOfName; ///< For each record the first record of the same name.
    int m_current = -1;
};

} // namespace vnsi
