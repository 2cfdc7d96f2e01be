#pragma once

#include "vndialogs.h"
#include "vnresbuf.h"

namespace vnsi {

/// Asks for one file name through the host's file dialog.
/// `filter` may separate the patterns of an entry by ";". Returns the dialog's "result"; when it is
/// 1 the path is in `path`, which is otherwise left alone.
int vnqtGetFileName(const OdString& title, const OdString& defaultName, const OdString& filter,
    int flags, OdString& path, QWidget* parent = nullptr);

/// Asks through the host's navigation dialog. Bit 0 of `flags` asks for a name to save under, bit
/// 0x1000 allows several files. Returns the dialog's "result"; when it is 1 `paths` gets a new list
/// with one string node a path, for the caller to free with `vnsiutRelRb`.
int vnqtGetNavFileName(const OdString& title, const OdString& defaultName, const OdString& caption,
    const OdString& dialogName, const OdString& filter, int flags, VnResbuf*& paths,
    QWidget* parent = nullptr);

} // namespace vnsi
