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

/// Names the linetypes of the drawing in front, which linetype pickers offer from then on. ByLayer
/// and ByBlock need not be among them.
VNSI_EXPORT void setLineTypes(std::vector<LineType> types);

/// ByLayer, ByBlock and the linetypes of the drawing in front; "Continuous" is always there.
const std::vector<LineType>& lineTypes();

} // namespace host
