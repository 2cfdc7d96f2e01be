#pragma once

#include "valuenode.h"

namespace vnsi {

class ValueArray final : public ValueNode
{
public:
    explicit ValueArray(int capacity);

    Kind kind() const override { return Kind::Array; }
    void collectChildren(std::vector<ValueNode*>& children) const override;

    int ArrayCount() const override { return static_cast<int>(m_elements.size()); }
    VnJsonPtr operator()(int index) const override;
    void Append(const VnJsonPtr& value) override;
    void AppendI(OdInt32 value) override;
    void AppendSW(const OdString& value) override;
    void Insert(int index, const VnJsonPtr& value) override;
    void Remove(int index) override;
    void Clear() override;

    const std::vector<Value>& elements() const { return m_elements; }
    /// Appends a value without checking whether it contains this array.
    void add(Value value) { m_elements.push_back(std::move(value)); }

private:
    bool isIndex(int index) const { return index >= 0 && index < ArrayCount(); }

    std::vector<Value> m_elements;
};

} // namespace vnsi
