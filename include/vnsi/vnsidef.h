#pragma once

/// Marks what the host library offers.
#define VNSI_EXPORT __attribute__((visibility("default")))
