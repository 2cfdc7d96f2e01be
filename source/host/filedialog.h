#pragma once

#include "vnjson.h"

#include <QFileDialog>

namespace host {

/// Asks for the path of one or several files.
/// Keys: "title", "caption" (the title where that is missing), "defawlt" (file name offered),
/// "Open" (otherwise a file to save is asked for; without the key bit 0 of "flags" asks for that),
/// "MutiFile", "filter", "defFilter", "dir". Answers: "filePath"; with "MutiFile" also "filePaths".
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
