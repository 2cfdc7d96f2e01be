#pragma once

#include "vnjson.h"

#include <QString>

class QWidget;

namespace vnsi {

/// A request to the host's file dialog, as the module's own dialogs use it.
struct FileQuestion
{
    QString caption; ///< Passed as UTF-8, unlike all other texts.
    QString filter;
    QString firstFilter;
    bool opens;   ///< True to open files, false to ask for a name to save under.
    bool several; ///< Whether several files can be chosen.
};

/// Converts the request to a tree, to which the caller may add further keys.
VnJsonPtr makeFileQuestion(const FileQuestion& question);
/// Sets the initial folder, or the suggested name to save under.
void setStartPlace(const VnJsonPtr& question, const OdString& place);
/// Shows the file dialog and returns its answer; empty when the user cancelled.
VnJsonPtr askForFile(const VnJsonPtr& question, QWidget* parent);

} // namespace vnsi
