#pragma once

#include "vnjson.h"

#include <string>

/// Operations on value trees that the host's own programs need and dialogs do not.
namespace host {

/// Parses a JSON text in UTF-8; empty when it is no JSON object or array. Whole numbers can be read
/// as either integer type.
VNSI_EXPORT vnsi::VnJsonPtr fromJson(const std::string& json);

VNSI_EXPORT bool isObject(const vnsi::VnJsonPtr& node);
VNSI_EXPORT bool isArray(const vnsi::VnJsonPtr& node);
VNSI_EXPORT bool hasKey(const vnsi::VnJsonPtr& node, const char* key);
/// Inserts before element `index`; appends when `index` is not below the count.
VNSI_EXPORT void insert(const vnsi::VnJsonPtr& array, int index, const vnsi::VnJsonPtr& node);
/// Removes all members or elements.
VNSI_EXPORT void clear(vnsi::IElementValueBase& node);

} // namespace host
