#pragma once

#include "RxObject.h"
#include "vnsidef.h"

namespace vnsi {

/// Registers `service` under `name`; one registered there before is replaced.
VNSI_EXPORT void vn_arbitDict_regservice(const OdString& name, const OdRxObjectPtr& service);
/// The service registered under `name`, exactly as written; null when there is none.
VNSI_EXPORT OdRxObjectPtr vn_arbitDict_getservice(const OdString& name);
/// Drops the dictionary's reference on what is registered under `name`.
VNSI_EXPORT void vn_arbitDict_clearservice(const OdString& name);

} // namespace vnsi
