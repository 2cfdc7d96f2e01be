#pragma once

#include "vnjson.h"

#include <QFileDialog>

namespace host {

/// Asks for the path of one or several files.
///
/// Input keys: "title", "caption" (the title when "title" is missing), "defawlt" (the suggested
/// file name), "Open" (true to open files, false to save one; without this key bit 0 of "flags"
/// asks for saving), "MutiFile", "filter", "defFilter", "dir". Answer keys: "filePath"; with
/// "MutiFile" also "filePaths".
///
/// When the filter asks for drawings, the form that drawings are read in is offered first and is
/// selected. A file name to save without a suffix gets the suffix of the selected filter.
class FileDialog : public QFileDialog
{
    Q_OBJECT

public:
    explicit FileDialog(QWidget* parent);

    void readKeys(const vnsi::VnJsonPtr& tree);
    void writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const;

private:
    void followFilter(const QString& entry);
};

} // namespace host
