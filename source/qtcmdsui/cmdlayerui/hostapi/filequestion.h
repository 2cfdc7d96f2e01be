#pragma once

#include "vnjson.h"

class QWidget;

namespace vnsi {

/// What the module's own dialogs ask of the host's file dialog.
struct FileQuestion
{
    const char* caption; ///< UTF-8; it is handed over as such, unlike all other texts.
    const wchar_t* filter;
    const wchar_t* firstFilter;
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
