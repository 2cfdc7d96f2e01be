#pragma once

#include "OdString.h"
#include "hostextras.h"

class QWidget;

namespace vnsi {

#define VNQT_EXPORT __attribute__((visibility("default")))

// The file requests that the module offers to command code; its library exports them.

/// Asks for one file name through the host's file dialog, under `parent` or, without one, the
/// host's current window. `filter` may separate the patterns of an entry by ";". Returns the
/// dialog's "result"; when it is 1 the path is in `path`, which is otherwise left alone. Never
/// throws: a dialog that fails counts as cancelled.
VNQT_EXPORT int vnqtGetFileName(const OdString& title, const OdString& defaultName,
    const OdString& filter, int flags, OdString& path, QWidget* parent = nullptr);

/// Asks through the host's navigation dialog. Bit 0 of `flags` asks for a name to save under, bit
/// 0x1000 allows several files. Returns the dialog's "result"; when it is 1 `paths` gets a new list
/// with one string node a path, for the caller to free, or null where the answer names no file.
VNQT_EXPORT int vnqtGetNavFileName(const OdString& title, const OdString& defaultName,
    const OdString& caption, const OdString& dialogName, const OdString& filter, int flags,
    hostextras::ResultBuffer*& paths, QWidget* parent = nullptr);

} // namespace vnsi
