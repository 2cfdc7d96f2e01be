#pragma once

#include "drawing.h"

#include <QStringList>

/// Takes layer states from files, as far as a drawing can use them.
class LayerStateImport
{
public:
    /// The drawing must outlive the object.
    explicit LayerStateImport(const drawing::Drawing& drawing) : m_drawing(drawing) {}

    /// Reads the states of a file of states or of a drawing: what it holds counts, not its name.
    void read(const QString& path, bool leavesOutReferences);
    /// Those read that the drawing can use and the user wants: asks before a state of the same name
    /// goes. None when the user cancels. Those read are then used up.
    std::vector<drawing::LayerState> choose();
    /// What could not be used, a sentence each.
    const QStringList& problems() const { return m_problems; }

private:
    enum class Existing { Ask, Replace, Cancel };

    std::vector<drawing::LayerState> statesOf(const QString& path);
    bool mayReplace(const QString& name);

    const drawing::Drawing& m_drawing;
    std::vector<drawing::LayerState> m_read;
    QStringList m_problems;
    Existing m_existing = Existing::Ask; ///< What becomes of states that are there already.
};
