#pragma once

#include "layercolor.h"
#include "layerkeys.h"
#include "treearray.h"

#include <cstddef>
#include <iterator>
#include <utility>

namespace vnsi {

/// A view of one layer record, for dialogs and commands. It shares the node, so what is written
/// through it is in the list. Without a node it reads as a record without members and writes
/// nothing.
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
    /// What the record says or asks for, a `LayerStatus`. A record that says nothing reads as the
    /// current layer's.
    int status() const { return number(layerkey::kStatus); }
    void setStatus(int status) { setNumber(layerkey::kStatus, status); }
    bool isCurrent() const { return status() == kLayerCurrent; }
    /// In a layer state the key reads the other way round: 1 is the current layer, 0 any other.
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

    /// Whether the record was changed. The mark is a bool but for the actions that write it as the
    /// number 1 (`markModifiedByAction`); both count.
    bool isModified() const
    {
        return flag(layerkey::kModified) || number(layerkey::kModified) == 1;
    }
    void markModified() { setFlag(layerkey::kModified, true); }
    /// The mark of the actions that go with a status code: the number 1, which commands tell from a
    /// changed property.
    void markModifiedByAction() { setNumber(layerkey::kModified, 1); }
    /// Whether a dialog asked for the action `status` on this layer.
    bool asksFor(LayerStatus action) const { return status() == action && isModified(); }

private:
    VnJsonPtr m_node;
};

/// The records of a list in their order: `for (LayerRecord record : LayerRecordList::of(tree))`.
/// Without a list there are none.
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
    /// Those of a tree, which may be empty.
    static LayerRecordList of(const VnJsonPtr& tree, const char* key = layerkey::kList)
    {
        return LayerRecordList(tree ? tree->GetDataJ(key) : VnJsonPtr());
    }

    /// Whether there is a list, be it an empty one.
    bool exists() const { return bool(m_list); }
    const VnJsonPtr& node() const { return m_list; }
    int count() const { return m_count; }
    bool holds(int index) const { return index >= 0 && index < m_count; }
    /// A null record outside the list.
    LayerRecord operator[](int index) const
    {
        return LayerRecord(holds(index) ? treearray::item(m_list, index) : VnJsonPtr());
    }
    Iterator begin() const { return {m_list, 0}; }
    Iterator end() const { return {m_list, m_count}; }

private:
    VnJsonPtr m_list;
    int m_count; ///< When this was made; records added since are not seen.
};

} // namespace vnsi
