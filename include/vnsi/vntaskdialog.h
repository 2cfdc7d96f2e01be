#pragma once

#include "OdString.h"
#include "vnsidef.h"

#include <memory>

namespace host {
struct TaskQuestion;
}

namespace vnsi {

/// A question that has one button for each possible answer.
class VNSI_EXPORT CVnUiTaskDialog
{
public:
    CVnUiTaskDialog();
    ~CVnUiTaskDialog();

    void SetWindowTitle(const OdString& text);
    void SetMainInstruction(const OdString& text);
    /// Adds a button. `DoModal` returns `id` when the button is pressed.
    void AddCommandControl(int id, const OdString& text);
    /// Asks the question. Returns the id of the pressed button, or 2 (cancel) when the dialog was
    /// closed without a choice.
    int DoModal();

private:
    std::unique_ptr<host::TaskQuestion> m_question;
};

} // namespace vnsi
