#pragma once

#include "valuenode.h"

namespace vnsi {

/// A scalar as a node of its own, made for an element that is taken out of an array.
class ValueScalar final : public ValueNode
{
public:
    explicit ValueScalar(Value value) : m_value(std::move(value)) {}

    Kind kind() const override;
    const Value* scalar() const override { return &m_value; }

private:
    Value m_value;
};

} // namespace vnsi
