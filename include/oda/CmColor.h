#pragma once

#include "OdaCommon.h"

/// A colour as drawings store it: a method together with a colour index or a true colour.
class ODRX_EXPORT OdCmEntityColor
{
public:
    enum ColorMethod {
        kByLayer = 192,
        kByBlock = 193,
        kByColor = 194, ///< A true colour.
        kByACI = 195    ///< A colour index.
    };

    OdCmEntityColor() = default;
    OdCmEntityColor(OdUInt8 red, OdUInt8 green, OdUInt8 blue) { setRGB(red, green, blue); }

    ColorMethod colorMethod() const { return m_method; }
    void setColorMethod(ColorMethod method) { m_method = method; }
    /// The colour index; 0 for a true colour.
    OdInt16 colorIndex() const { return m_index; }
    /// Sets the index and the method that belongs to it: 0 is ByBlock, 256 is ByLayer, and every
    /// other value is an index colour.
    void setColorIndex(OdInt16 index);
    void setRGB(OdUInt8 red, OdUInt8 green, OdUInt8 blue);

    /// The three parts of the colour to show: of the true colour itself, or of the index's table
    /// entry.
    OdUInt8 red() const { return static_cast<OdUInt8>(displayed()); }
    OdUInt8 green() const { return static_cast<OdUInt8>(displayed() >> 8); }
    OdUInt8 blue() const { return static_cast<OdUInt8>(displayed() >> 16); }

    /// The RGB colour of an index in the published table of 255 colours. An index outside 1..255
    /// gives white.
    static ODCOLORREF lookUpRGB(int index);

private:
    ODCOLORREF displayed() const;

    ColorMethod m_method = kByColor;
    OdInt16 m_index = 0;
    ODCOLORREF m_rgb = 0;
};

class OdCmColor : public OdCmEntityColor
{
public:
    using OdCmEntityColor::OdCmEntityColor;
};
