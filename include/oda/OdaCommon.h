#pragma once

#include <cstddef>
#include <cstdint>

#define ODRX_EXPORT __attribute__((visibility("default")))

using OdInt16 = std::int16_t;
using OdUInt8 = std::uint8_t;
using OdInt32 = std::int32_t;
using OdUInt32 = std::uint32_t;
using OdInt64 = std::int64_t;

/// An RGB colour packed as 0x00BBGGRR.
using ODCOLORREF = std::uint32_t;

/// Reports a failed assertion with its expression and its place in the source.
ODRX_EXPORT void OdAssert(const char* expression, const char* file, int line);
