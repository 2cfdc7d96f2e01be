#pragma once

#include "vnjson.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace fuzz {

/// Changes a tree as chosen by the bytes: values and types are replaced, members are removed,
/// added, shared or moved. Added members have keys that the dialogs know.
void changeTree(const vnsi::VnJsonPtr& root, FuzzedDataProvider& bytes, int mostChanges);

} // namespace fuzz
