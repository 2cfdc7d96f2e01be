#pragma once

#include "RxObject.h"
#include "vnsidef.h"

namespace vnsi {

/// Registers `service` under `name` and replaces any earlier registration.
VNSI_EXPORT void vn_arbitDict_regservice(const OdString& name, const OdRxObjectPtr& service);
/// The service registered under exactly this name; null when there is none.
VNSI_EXPORT OdRxObjectPtr vn_arbitDict_getservice(const OdString& name);
/// Releases the dictionary's reference to the service registered under `name`.
VNSI_EXPORT void vn_arbitDict_clearservice(const OdString& name);

} // namespace vnsi
