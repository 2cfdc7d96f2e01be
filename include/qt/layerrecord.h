#pragma once

#include "layercolor.h"
#include "layerkeys.h"
#include "treearray.h"

#include <cstddef>
#include <iterator>
#include <utility>

namespace vnsi {

/// A view of one layer record, for dialogs and commands. It shares the node, so writing through it
/// changes the list. Without a node every getter returns its default and every setter does nothing.
class LayerRecord
{
public:
    explicit LayerRecord(VnJsonPtr node) : m_node(std::move(node)) {}
    bool isNull() const { return !m_node; }
    const VnJsonPtr& node() const { return m_node; }

    bool flag(const char* key) const { return m_node && m_node->GetDataB(key); }
    void setFlag(const char* key, bool value)
    {
        if (m_node)
            m_node->SetDataB(key, value);
    }
    int number(const char* key, int fallback = 0) const
    {
        return m_node ? m_node->GetDataI(key, fallback) : fallback;
    }
    void setNumber(const char* key, int value)
    {
        if (m_node)
            m_node->SetDataI(key, value);
    }
    OdString text(const char* key) const { return m_node ? m_node->GetDataSW(key) : OdString(); }
    void setText(const char* key, const OdString& value)
    {
        if (m_node)
            m_node->SetDataSW(key, value);
    }

    OdString name() const { return text(layerkey::kName); }
    void setName(const OdString& name) { setText(layerkey::kName, name); }
    /// The status or requested action of the record, a `LayerStatus`. A record without this key
    /// reads as the current layer.
    int status() const { return number(layerkey::kStatus); }
    void setStatus(int status) { setNumber(layerkey::kStatus, status); }
    bool isCurrent() const { return status() == kLayerCurrent; }
    /// In a layer state the key has the opposite meaning: 1 is the current layer, 0 any other.
    bool isCurrentOfState() const { return status() == 1; }
    void setCurrentOfState(bool current) { setStatus(current ? 1 : 0); }
    bool isOff() const { return flag(layerkey::kOff); }
    bool isFrozen() const { return flag(layerkey::kFrozen); }
    bool isUsed() const { return flag(layerkey::kUsed); }
    bool isSelected() const { return flag(layerkey::kSelected); }
    void setSelected(bool selected) { setFlag(layerkey::kSelected, selected); }
    bool dependsOnReference() const { return flag(layerkey::kDepend); }

    LayerColor color() const
    {
        return m_node ? LayerColor::read(*m_node, layerkey::kColorMethod, layerkey::kColorValue)
                      : LayerColor{};
    }
    void setColor(const LayerColor& color)
    {
        if (m_node)
            color.write(*m_node, layerkey::kColorMethod, layerkey::kColorValue);
    }

    /// Whether the record was changed. The mark is normally a bool; the actions that write a status
    /// code write it as the number 1 (see `markModifiedByAction`). Both count.
    bool isModified() const
    {
        return flag(layerkey::kModified) || number(layerkey::kModified) == 1;
    }
    void markModified() { setFlag(layerkey::kModified, true); }
    /// Marks the record as changed by an action that writes a status code. The mark is the number
    /// 1, which lets commands tell it from a changed property.
    void markModifiedByAction() { setNumber(layerkey::kModified, 1); }
    /// Whether a dialog asked for the action `status` on this layer.
    bool asksFor(LayerStatus action) const { return status() == action && isModified(); }

private:
    VnJsonPtr m_node;
};

/// The records of a list in their order: `for (LayerRecord record : LayerRecordList::of(tree))`.
/// Without a list the range is empty.
class LayerRecordList
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = LayerRecord;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = LayerRecord;

        Iterator(const VnJsonPtr& list, int index) : m_list(list), m_index(index) {}
        LayerRecord operator*() const { return LayerRecord(treearray::item(m_list, m_index)); }
        Iterator& operator++()
        {
            ++m_index;
            return *this;
        }
        bool operator==(const Iterator& other) const { return m_index == other.m_index; }
        bool operator!=(const Iterator& other) const { return m_index != other.m_index; }

    private:
        const VnJsonPtr& m_list;
        int m_index;
    };

    explicit LayerRecordList(VnJsonPtr list)
        : m_list(std::move(list)),
          m_count(treearray::count(m_list))
    {
    }
    /// The record list under `key` of a tree. The tree may be empty.
    static LayerRecordList of(const VnJsonPtr& tree, const char* key = layerkey::kList)
    {
        return LayerRecordList(tree ? tree->GetDataJ(key) : VnJsonPtr());
    }

    /// Whether there is a list. An empty list counts.
    bool exists() const { return bool(m_list); }
    const VnJsonPtr& node() const { return m_list; }
    int count() const { return m_count; }
    bool holds(int index) const { return index >= 0 && index < m_count; }
    /// The record at `index`; a null record when `index` lies outside the list.
    LayerRecord operator[](int index) const
    {
        return LayerRecord(holds(index) ? treearray::item(m_list, index) : VnJsonPtr());
    }
    Iterator begin() const { return {m_list, 0}; }
    Iterator end() const { return {m_list, m_count}; }

private:
    VnJsonPtr m_list;
    int m_count; ///< The count at the time of construction; records added later are not seen.
};

} // namespace vnsi
