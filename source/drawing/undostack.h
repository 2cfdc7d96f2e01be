#pragma once

#include "drawingdata.h"

#include <vector>

namespace drawing {

/// A completed undo step.
struct UndoStep
{
    QString name;
    DrawingData::Changes changes;
};

/// The steps that were done and undone, and which of them are in the file on disk.
class UndoStack
{
public:
    /// Adds a step that was just done and drops the steps undone before it.
    void push(UndoStep step);
    /// The step to undo (or, for `redoStep`, to redo) next; null when there is none.
    const UndoStep* undoStep() const;
    const UndoStep* redoStep() const;
    void stepBack() { --m_done; }
    void stepForward() { ++m_done; }

    bool isClean() const { return m_clean == m_done; }
    void setClean() { m_clean = m_done; }

private:
    std::vector<UndoStep> m_steps;
    int m_done = 0;
    // The number of steps in the saved file; -1 when that state can no longer be reached.
    int m_clean = 0;
};

} // namespace drawing
