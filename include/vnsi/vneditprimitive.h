#pragma once

#include "RxObject.h"
#include "vnsidef.h"

namespace vnsi {

/// The service "Core/EditPrimitiveServer".
class VNSI_EXPORT VnEditPrimitiveServer : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnEditPrimitiveServer)
public:
    /// Shows the help of what is running; `topic` 0 is its start page.
    virtual void help(int topic) = 0;
};

} // namespace vnsi
