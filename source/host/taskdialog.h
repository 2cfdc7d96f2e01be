#pragma once

#include "vntaskdialog.h"

#include <QDialog>

namespace host {

/// A question with a large button for each answer.
class TaskDialog : public QDialog
{
    Q_OBJECT

public:
    TaskDialog(const vnsi::CVnUiTaskDialog& content, QWidget* parent);

    /// The id of the answer chosen; 2 when none was.
    int answer() const { return m_answer; }

private:
    void choose(int id);

    int m_answer = 2;
};

} // namespace host
