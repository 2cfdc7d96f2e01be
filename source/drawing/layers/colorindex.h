#pragma once

#include <QtGlobal>

namespace drawing {

constexpr int kColorByBlock = 0;
constexpr int kColorForeground = 7; ///< White on a dark background, black on a light one.
constexpr int kColorByLayer = 256;

/// Whether a layer may have this colour index.
constexpr bool isColorIndex(qint64 index)
{
    return index > kColorByBlock && index < kColorByLayer;
}

/// The index in a number whose sign says something else: that the layer is off.
constexpr qint64 withoutSign(qint64 stored)
{
    return stored < -kColorByLayer ? kColorByLayer : stored < 0 ? -stored : stored;
}

/// A colour in one number: how it is meant in the highest byte, the value in the other three.
struct PackedColor
{
    enum Method : quint32 { None = 0, TrueColor = 0xc2, Index = 0xc3 };

    explicit constexpr PackedColor(qint64 stored)
        : method((static_cast<quint32>(stored) >> 24) & 0xff),
          value(static_cast<quint32>(stored) & 0xffffff)
    {
    }
    constexpr PackedColor(Method itsMethod, quint32 itsValue) : method(itsMethod), value(itsValue)
    {
    }
    /// As files write it: a signed number of 32 bits.
    constexpr qint64 stored() const { return static_cast<qint32>(method << 24 | value); }

    quint32 method; ///< A `Method`, or what else a file holds there.
    quint32 value;  ///< 0x00RRGGBB, or an index.
};

} // namespace drawing
