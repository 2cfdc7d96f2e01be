#pragma once

#include "layers/layer.h"

namespace drawing {

/// Where the colour of something drawn comes from; ByBlock is resolved by then.
struct GeometryColor
{
    enum class Source : quint8 { Layer, Index, True };

    Source source = Source::Layer;
    quint32 value = 0; ///< A layer's id, a colour index 1..255, or 0x00RRGGBB.
};

bool operator==(const GeometryColor& a, const GeometryColor& b);

/// A property that follows a layer, or is said outright; ByBlock is resolved by then.
struct GeometrySetting
{
    LayerId layer = LayerId::None; ///< The one followed; None: `value` counts.
    int value = 0;
};

bool operator==(const GeometrySetting& a, const GeometrySetting& b);

/// How something is drawn, as far as the drawing itself tells.
struct GeometryStyle
{
    GeometryColor color;
    GeometrySetting linetype;     ///< Index into the drawing's linetype patterns.
    GeometrySetting lineweight;   ///< Hundredths of a millimetre; -3 is "default".
    GeometrySetting transparency; ///< Percent.
};

bool operator==(const GeometryStyle& a, const GeometryStyle& b);
uint qHash(const GeometryStyle& style, uint seed = 0);

} // namespace drawing
