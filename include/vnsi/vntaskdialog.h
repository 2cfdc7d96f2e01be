#pragma once

#include "OdString.h"
#include "vnsidef.h"

#include <utility>
#include <vector>

namespace vnsi {

/// A question with a button for each of several answers.
class VNSI_EXPORT CVnUiTaskDialog
{
public:
    void SetWindowTitle(const OdString& text) { m_title = text; }
    void SetMainInstruction(const OdString& text) { m_instruction = text; }
    void AddCommandControl(int id, const OdString& text) { m_commands.emplace_back(id, text); }
    /// Asks; returns the id chosen, or 2 (cancel) when the dialog was closed without a choice.
    int DoModal();

    const OdString& windowTitle() const { return m_title; }
    const OdString& mainInstruction() const { return m_instruction; }
    const std::vector<std::pair<int, OdString>>& commands() const { return m_commands; }

private:
    OdString m_title;
    OdString m_instruction;
    std::vector<std::pair<int, OdString>> m_commands;
};

} // namespace vnsi
