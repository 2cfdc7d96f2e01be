#include "undostack.h"

namespace drawing {

void UndoStack::push(UndoStep step)
{
    if (m_clean > m_done)
        m_clean = -1;
    m_steps.resize(static_cast<size_t>(m_done));
    m_steps.push_back(std::move(step));
    ++m_done;
}

const UndoStep* UndoStack::undoStep() const
{
    return m_done > 0 ? &m_steps[static_cast<size_t>(m_done) - 1] : nullptr;
}

const UndoStep* UndoStack::redoStep() const
{
    return static_cast<size_t>(m_done) < m_steps.size() ? &m_steps[static_cast<size_t>(m_done)]
                                                        : nullptr;
}

} // namespace drawing
