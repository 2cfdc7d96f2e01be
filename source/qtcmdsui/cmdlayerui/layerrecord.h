#pragma once

#include "CmColor.h"
#include "layerkeys.h"
#include "vnjson.h"

namespace vnsi {

/// A colour as records hold it: 195 and an index, or 194 and red, green, blue from the lowest byte
/// up.
struct LayerColor
{
    OdInt64 method = 0;
    OdInt64 value = 0;
    OdCmColor resolved() const;
    /// The value alone: of an index its low 16 bits, which are the ones that count.
    OdInt64 chosenValue() const;
};

/// A view of one layer record. It shares the node, so what is written through it is in the list.
class LayerRecord
{
public:
    explicit LayerRecord(VnJsonPtr node) : m_node(std::move(node)) {}
    bool isNull() const { return m_node.isNull(); }

    bool flag(const char* key) const { return m_node && m_node->GetDataB(key); }
    void setFlag(const char* key, bool value)
    {
        if (m_node)
            m_node->SetDataB(key, value);
    }
    int number(const char* key) const { return m_node ? m_node->GetDataI(key) : 0; }
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
    int status() const { return number(layerkey::kStatus); }
    void setStatus(int status) { setNumber(layerkey::kStatus, status); }
    bool isCurrent() const { return status() == kLayerCurrent; }
    /// In a layer state the key reads the other way round: 1 is the current layer, 0 any other.
    bool isCurrentOfState() const { return status() == 1; }
    void setCurrentOfState(bool current) { setStatus(current ? 1 : 0); }
    bool isOff() const { return flag(layerkey::kOff); }
    bool dependsOnReference() const { return flag(layerkey::kDepend); }
    LayerColor color() const;
    void setColor(const LayerColor& color);

    /// Whether the record was changed. The mark is a bool but for the actions that write it as the
    /// number 1 (`markModifiedByAction`); both count.
    bool isModified() const;
    void markModified() { setFlag(layerkey::kModified, true); }
    /// The mark of the actions that go with a status code: the number 1, which commands tell from a
    /// changed property.
    void markModifiedByAction() { setNumber(layerkey::kModified, 1); }

private:
    VnJsonPtr m_node;
};

} // namespace vnsi
