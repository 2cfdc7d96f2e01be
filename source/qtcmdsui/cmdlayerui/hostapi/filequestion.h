#pragma once

#include "vnjson.h"

#include <QString>

class QWidget;

namespace vnsi {

/// What the module's own dialogs ask of the host's file dialog.
struct FileQuestion
{
    QString caption; ///< Handed over as UTF-8, unlike all other texts.
    QString filter;
    QString firstFilter;
    bool opens;   ///< False to ask for a name to save under.
    bool several; ///< Whether several files may be chosen.
};

/// The question as a tree, for the caller to add what else there is to say.
VnJsonPtr makeFileQuestion(const FileQuestion& question);
/// Says where to start: a folder, or a name to save under.
void setStartPlace(const VnJsonPtr& question, const OdString& place);
/// Asks; the answer, empty where the user cancelled.
VnJsonPtr askForFile(const VnJsonPtr& question, QWidget* parent);

} // namespace vnsi
