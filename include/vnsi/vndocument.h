#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdArray.h"
#include "RxObject.h"
#include "vnsidef.h"

namespace vnsi {

/// An open drawing as dialogs see it.
class VNSI_EXPORT VnDocument : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocument)
public:
    /// The colours that indices stand for, by index.
    virtual const OdArray<ODCOLORREF>& colorTable() const = 0;
};

using VnDocumentPtr = OdSmartPtr<VnDocument>;

/// The service "Core/DocMgr".
class VNSI_EXPORT VnDocMgr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocMgr)
public:
    /// The drawing in front; null when none is open.
    virtual VnDocumentPtr currentDocument() const = 0;
};

/// The text that names a colour: "ByLayer", "ByBlock", the name or number of an index colour, the
/// three parts of a true colour with commas. `layer` gives what a ByLayer colour resolves to; null
/// for none.
VNSI_EXPORT OdString formatColor(
    const OdCmColor& color, const OdArray<ODCOLORREF>& colorTable, OdDbObjectId layer);

} // namespace vnsi
