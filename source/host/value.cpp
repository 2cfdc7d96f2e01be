#include "value.h"

#include "valuescalar.h"

#include <limits>

namespace vnsi {

Branch::Branch(ValueNode& node) : m_node(&node)
{
    m_node->addRef();
    m_node->hang();
}

Branch::Branch(const Branch& other) : Branch(*other.m_node) {}

Branch::~Branch()
{
    if (!m_node)
        return;
    m_node->unhang();
    m_node->release();
}

bool readBool(const Value& value, bool fallback)
{
    const bool* found = std::get_if<bool>(&value);
    return found ? *found : fallback;
}

OdInt32 readInt(const Value& value, OdInt32 fallback)
{
    if (const auto* found = std::get_if<OdInt32>(&value))
        return *found;
    const auto* untyped = std::get_if<JsonInteger>(&value);
    using Limits = std::numeric_limits<OdInt32>;
    const bool fits = untyped && untyped->value >= Limits::min() && untyped->value <= Limits::max();
    return fits ? static_cast<OdInt32>(untyped->value) : fallback;
}

OdInt64 readLong(const Value& value, OdInt64 fallback)
{
    if (const auto* found = std::get_if<OdInt64>(&value))
        return *found;
    const auto* untyped = std::get_if<JsonInteger>(&value);
    return untyped ? untyped->value : fallback;
}

OdString readText(const Value& value, const OdString& fallback)
{
    const auto* found = std::get_if<OdString>(&value);
    return found ? *found : fallback;
}

ValueNode* readNode(const Value& value)
{
    const auto* branch = std::get_if<Branch>(&value);
    return branch ? branch->node() : nullptr;
}

Value toValue(const VnJsonPtr& node)
{
    auto* const inner = static_cast<ValueNode*>(node.get());
    if (!inner)
        return {};
    const Value* scalar = inner->scalar();
    return scalar ? *scalar : Value(Branch(*inner));
}

VnJsonPtr toHandle(const Value& value)
{
    ValueNode* const node = readNode(value);
    if (!node)
        return VnJsonPtr(new ValueScalar(value));
    node->addRef();
    return VnJsonPtr(node);
}

} // namespace vnsi
