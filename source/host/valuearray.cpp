#include "valuearray.h"

#include <algorithm>

namespace vnsi {

namespace {
constexpr int kMostReserved = 1 << 20;
} // namespace

ValueArray::ValueArray(int capacity)
{
    m_elements.reserve(static_cast<std::size_t>(std::clamp(capacity, 0, kMostReserved)));
}

void ValueArray::collectChildren(std::vector<ValueNode*>& children) const
{
    for (const Value& element : m_elements) {
        if (ValueNode* const node = readNode(element))
            children.push_back(node);
    }
}

VnJsonPtr ValueArray::operator()(int index) const
{
    return isIndex(index) ? toHandle(m_elements[static_cast<std::size_t>(index)]) : VnJsonPtr();
}

void ValueArray::Append(const VnJsonPtr& value)
{
    Insert(ArrayCount(), value);
}

void ValueArray::AppendI(OdInt32 value)
{
    add(value);
}

void ValueArray::AppendSW(const OdString& value)
{
    add(value);
}

void ValueArray::Insert(int index, const VnJsonPtr& value)
{
    if (!value || !static_cast<ValueNode*>(value.get())->mayHangIn(*this))
        return;
    m_elements.insert(
        isIndex(index) ? m_elements.begin() + index : m_elements.end(), toValue(value));
}

void ValueArray::Remove(int index)
{
    if (isIndex(index))
        m_elements.erase(m_elements.begin() + index);
}

void ValueArray::Clear()
{
    m_elements.clear();
}

} // namespace vnsi
