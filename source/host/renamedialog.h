#pragma once

#include "vnjson.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace host {

/// Asks for one line of text. It accepts any text; callers check names themselves.
///
/// Input keys: "DefaultName", "Tip" (the label; with it the dialog asks for a description). Answer
/// keys: "Success" and, when that is true, "NewName".
class RenameDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RenameDialog(QWidget* parent);

    void readKeys(const vnsi::VnJsonPtr& tree);
    void writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const;

private:
    QLabel* m_tip;
    QLineEdit* m_name;
};

} // namespace host
