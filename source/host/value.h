#pragma once

#include "vnjson.h"

#include <variant>

namespace vnsi {

class ValueNode;

/// A place in a container that holds a node. It holds a reference, and lets the node count how many
/// containers it hangs in.
class Branch
{
public:
    explicit Branch(ValueNode& node);
    Branch(const Branch& other);
    Branch(Branch&& other) noexcept : m_node(std::exchange(other.m_node, nullptr)) {}
    Branch& operator=(Branch other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }
    ~Branch();

    ValueNode* node() const { return m_node; }

private:
    ValueNode* m_node;
};

/// A whole number out of a JSON text, which does not tell the two integer types apart: it reads as
/// either one that it fits.
struct JsonInteger
{
    OdInt64 value;
};

/// What stands under a key or in an array: a scalar in place, or a node.
using Value =
    std::variant<std::monostate, bool, OdInt32, OdInt64, JsonInteger, double, OdString, Branch>;

// Reading with the getters' rules: another type gives the fallback.
bool readBool(const Value& value, bool fallback);
OdInt32 readInt(const Value& value, OdInt32 fallback);
OdInt64 readLong(const Value& value, OdInt64 fallback);
OdString readText(const Value& value, const OdString& fallback);
/// The node of a branch; null for scalars.
ValueNode* readNode(const Value& value);

/// The scalar of a scalar node, otherwise a branch on the node.
Value toValue(const VnJsonPtr& node);
/// A handle on the value: the node of a branch, a node of its own for a scalar.
VnJsonPtr toHandle(const Value& value);

} // namespace vnsi
