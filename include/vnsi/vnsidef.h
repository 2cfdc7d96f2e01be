#pragma once

/// Exports a symbol from the host library.
#define VNSI_EXPORT __attribute__((visibility("default")))
