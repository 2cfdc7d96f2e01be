#pragma once

#include "vnjson.h"

#include <variant>

namespace vnsi {

class ValueNode;

/// A container's reference to a node. It keeps the node alive and lets the node count how many
/// containers it is part of.
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

/// A whole number from a JSON text. JSON does not distinguish the two integer types, so it can be
/// read as either type that it fits.
struct JsonInteger
{
    OdInt64 value;
};

/// The value of a member or array element: a scalar, or a node.
using Value =
    std::variant<std::monostate, bool, OdInt32, OdInt64, JsonInteger, double, OdString, Branch>;

// These functions follow the rule of the getters: a value of another type gives the fallback.
bool readBool(const Value& value, bool fallback);
OdInt32 readInt(const Value& value, OdInt32 fallback);
OdInt64 readLong(const Value& value, OdInt64 fallback);
OdString readText(const Value& value, const OdString& fallback);
/// The node of a branch; null for a scalar.
ValueNode* readNode(const Value& value);

/// The value of a scalar node; for any other node a branch that refers to it.
Value toValue(const VnJsonPtr& node);
/// A handle for the value: the node of a branch, or a new node for a scalar.
VnJsonPtr toHandle(const Value& value);

} // namespace vnsi
