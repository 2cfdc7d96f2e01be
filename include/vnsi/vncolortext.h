#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdArray.h"
#include "OdString.h"
#include "vnsidef.h"

namespace vnsi {

/// The text that names a colour: "ByLayer", "ByBlock", the name or number of an index colour, the
/// three parts of a true colour with commas. `layer` gives what a ByLayer colour resolves to; null
/// for none.
VNSI_EXPORT OdString formatColor(
    const OdCmColor& color, const OdArray<ODCOLORREF>& colorTable, OdDbObjectId layer);

} // namespace vnsi
