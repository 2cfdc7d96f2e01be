#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdArray.h"
#include "OdString.h"
#include "vnsidef.h"

namespace vnsi {

/// The text of a colour: "ByLayer", "ByBlock", the name or number of an index colour, or the three
/// parts of a true colour separated by commas. `layer` is the layer that a ByLayer colour is
/// resolved with; it may be null.
VNSI_EXPORT OdString formatColor(
    const OdCmColor& color, const OdArray<ODCOLORREF>& colorTable, OdDbObjectId layer);

} // namespace vnsi
