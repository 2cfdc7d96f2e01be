#pragma once

#include "layers/layer.h"

namespace drawing {

/// Where the colour of drawn geometry comes from. ByBlock has already been resolved.
struct GeometryColor
{
    enum class Source : quint8 { Layer, Index, True };

    Source source = Source::Layer;
    quint32 value = 0; ///< A layer id, a colour index 1..255, or 0x00RRGGBB.
};

bool operator==(const GeometryColor& a, const GeometryColor& b);

/// A property that follows a layer or has a value of its own. ByBlock has already been resolved.
struct GeometrySetting
{
    LayerId layer = LayerId::None; ///< The layer to follow; None when `value` applies.
    int value = 0;
};

bool operator==(const GeometrySetting& a, const GeometrySetting& b);

/// The style of drawn geometry, as far as the drawing itself defines it.
struct GeometryStyle
{
    GeometryColor color;
    GeometrySetting linetype;     ///< The value is an index into the drawing's linetype patterns.
    GeometrySetting lineweight;   ///< In hundredths of a millimetre; -3 is the default lineweight.
    GeometrySetting transparency; ///< In percent.
};

bool operator==(const GeometryStyle& a, const GeometryStyle& b);
uint qHash(const GeometryStyle& style, uint seed = 0);

} // namespace drawing
