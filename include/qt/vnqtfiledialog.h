#pragma once

#include "OdString.h"
#include "hostextras.h"

class QWidget;

namespace vnsi {

#define VNQT_EXPORT __attribute__((visibility("default")))

// The file requests that the module offers to command code. The module's library exports them.

/// Asks for one file name through the host's file dialog. Its parent is `parent`, or the host's
/// current window when `parent` is null. Within one entry of `filter`, ";" may separate the
/// patterns. Returns the dialog's "result". Only when that is 1, `path` receives the chosen path.
/// Never throws: a dialog that fails counts as cancelled.
VNQT_EXPORT int vnqtGetFileName(const OdString& title, const OdString& defaultName,
    const OdString& filter, int flags, OdString& path, QWidget* parent = nullptr);

/// Asks through the host's navigation dialog. Bit 0 of `flags` asks for a name to save under; bit
/// 0x1000 allows several files. Returns the dialog's "result". Only when that is 1, `paths`
/// receives a new list with one string node per path, which the caller must free; it is null when
/// the answer names no file.
VNQT_EXPORT int vnqtGetNavFileName(const OdString& title, const OdString& defaultName,
    const OdString& caption, const OdString& dialogName, const OdString& filter, int flags,
    hostextras::ResultBuffer*& paths, QWidget* parent = nullptr);

} // namespace vnsi
