#pragma once

#include "vnjson.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace fuzz {

/// Makes changes to a tree, chosen by the bytes: other values, other types, gone, added, shared,
/// hung elsewhere. What is added has keys that dialogs know.
void changeTree(const vnsi::VnJsonPtr& root, FuzzedDataProvider& bytes, int mostChanges);

} // namespace fuzz
