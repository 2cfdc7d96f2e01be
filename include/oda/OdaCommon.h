#pragma once

#include <cstddef>
#include <cstdint>

#define ODRX_EXPORT __attribute__((visibility("default")))

using OdInt16 = std::int16_t;
using OdUInt8 = std::uint8_t;
using OdInt32 = std::int32_t;
using OdUInt32 = std::uint32_t;
using OdInt64 = std::int64_t;

/// A colour packed as 0x00BBGGRR.
using ODCOLORREF = std::uint32_t;

/// Called with the expression, file and line of an assertion that does not hold.
using OdAssertHandler = void (*)(const char* expression, const char* file, int line);

/// Reports a broken assertion to the installed handler; the default one writes it to the standard
/// error stream and ends the process in builds without NDEBUG.
ODRX_EXPORT void OdAssert(const char* expression, const char* file, int line);
/// Installs a handler, null for the default one, and returns the one before.
ODRX_EXPORT OdAssertHandler odSetAssertHandler(OdAssertHandler handler);
