#pragma once

#include "drawingdata.h"

#include <vector>

namespace drawing {

/// A step that was done.
struct UndoStep
{
    QString name;
    DrawingData::Changes changes;
};

/// The steps done and undone, and which of them the file on disk has.
class UndoStack
{
public:
    /// Takes in a step just done; those undone before it are lost.
    void push(UndoStep step);
    /// The step to take back or to do again next; null when there is none.
    const UndoStep* undoStep() const;
    const UndoStep* redoStep() const;
    void stepBack() { --m_done; }
    void stepForward() { ++m_done; }

    bool isClean() const { return m_clean == m_done; }
    void setClean() { m_clean = m_done; }

private:
    std::vector<UndoStep> m_steps;
    int m_done = 0;
    int m_clean = 0; // Steps the saved file has; -1 when these can no longer be reached.
};

} // namespace drawing
