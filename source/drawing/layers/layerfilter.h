#pragma once

#include "layer.h"

#include <QString>

#include <vector>

namespace drawing {

/// A layer filter saved in a drawing.
struct LayerFilter
{
    enum class Kind {
        Property, ///< Layers that an expression describes.
        Group,    ///< Layers that it lists.
        Unknown   ///< Kept as it is.
    };

    Kind kind = Kind::Property;
    QString name;
    QString expression;          ///< Of a property filter.
    std::vector<LayerId> layers; ///< Of a group, in its order.
    quint64 record = 0;          ///< Handle of its record: which filter it is.
    quint64 parent = 0;          ///< Record of the filter around it; 0 at the top.
};

} // namespace drawing
