#pragma once

#include "OdString.h"
#include "vnsidef.h"

#include <memory>

namespace host {
struct TaskQuestion;
}

namespace vnsi {

/// A question with a button for each of several answers.
class VNSI_EXPORT CVnUiTaskDialog
{
public:
    CVnUiTaskDialog();
    ~CVnUiTaskDialog();

    void SetWindowTitle(const OdString& text);
    void SetMainInstruction(const OdString& text);
    /// Adds a button; `id` is what `DoModal` returns for it.
    void AddCommandControl(int id, const OdString& text);
    /// Asks; returns the id chosen, or 2 (cancel) when the dialog was closed without a choice.
    int DoModal();

private:
    std::unique_ptr<host::TaskQuestion> m_question;
};

} // namespace vnsi
