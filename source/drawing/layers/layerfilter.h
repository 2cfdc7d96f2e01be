#pragma once

#include "layer.h"

#include <QString>

#include <vector>

namespace drawing {

/// A layer filter that is saved in a drawing.
struct LayerFilter
{
    enum class Kind {
        Property, ///< Selects layers by an expression.
        Group,    ///< Lists its layers.
        Unknown   ///< A filter of another kind, which is kept unchanged.
    };

    Kind kind = Kind::Property;
    QString name;
    QString expression;          ///< The expression of a property filter.
    std::vector<LayerId> layers; ///< The layers of a group filter, in its order.
    quint64 record = 0;          ///< The handle of its record, which identifies the filter.
    quint64 parent = 0;          ///< The record of the parent filter; 0 at the top level.
};

} // namespace drawing
