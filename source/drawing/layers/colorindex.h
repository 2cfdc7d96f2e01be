#pragma once

#include <QtGlobal>

namespace drawing {

constexpr int kColorByBlock = 0;
constexpr int kColorForeground = 7; ///< White on a dark background and black on a light one.
constexpr int kColorByLayer = 256;

/// Whether a layer may have this colour index.
constexpr bool isColorIndex(qint64 index)
{
    return index > kColorByBlock && index < kColorByLayer;
}

/// The colour index of a stored number. A negative sign is removed; it means that the layer is off.
constexpr qint64 withoutSign(qint64 stored)
{
    return stored < -kColorByLayer ? kColorByLayer : stored < 0 ? -stored : stored;
}

/// A colour packed into one number: the method in the highest byte, the value in the other three.
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
    /// The form in files, a signed 32-bit number.
    constexpr qint64 stored() const { return static_cast<qint32>(method << 24 | value); }

    quint32 method; ///< A `Method`, or another value found in a file.
    quint32 value;  ///< 0x00RRGGBB or a colour index.
};

} // namespace drawing
