#pragma once

#include "DbObjectId.h"
#include "OdString.h"
#include "vnsidef.h"

#include <vector>

namespace host {

struct LineType
{
    OdString name;
    OdDbObjectId id;
};

/// Sets the linetypes of the drawing in the foreground, which the linetype pickers offer from now
/// on. ByLayer and ByBlock need not be included.
VNSI_EXPORT void setLineTypes(std::vector<LineType> types);

/// ByLayer, ByBlock and the linetypes of the drawing in the foreground. "Continuous" is always
/// included.
const std::vector<LineType>& lineTypes();

} // namespace host
