#include "undostack.h"

namespace drawing {

bool UndoStep::isEmpty() const
{
    return edits.empty() && layers.empty() && entities.empty() && before == after;
}

void UndoStep::apply(DrawingData& data, bool forward) const
{
    data.journal.apply(edits, forward);
    data.layers.apply(layers, forward);
    const auto put = [&data](int index, const EntityChange::State& state) {
        Entity& entity = data.index.entities[static_cast<size_t>(index)];
        entity.layer = state.layer;
        entity.removed = state.removed;
        entity.colorByLayer = state.colorByLayer;
    };
    // An entity may have changed more than once.
    if (forward) {
        for (const EntityChange& change : entities)
            put(change.entity, change.after);
    } else {
        for (auto change = entities.rbegin(); change != entities.rend(); ++change)
            put(change->entity, change->before);
    }
    data.state = forward ? after : before;
}

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
