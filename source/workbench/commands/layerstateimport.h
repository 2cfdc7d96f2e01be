#pragma once

#include "drawing.h"

#include <QStringList>

/// Imports layer states from files, as far as a drawing can use them.
class LayerStateImport
{
public:
    /// The drawing must outlive this object.
    explicit LayerStateImport(const drawing::Drawing& drawing) : m_drawing(drawing) {}

    /// Reads the states of a layer state file or of a drawing. The contents decide on the type, not
    /// the name.
    void read(const QString& path, bool leavesOutReferences);
    /// Returns the states read so far that the drawing can use and the user wants, and forgets
    /// them. Asks before a state of the same name is replaced. Returns none when the user cancels.
    std::vector<drawing::LayerState> choose();
    /// One sentence for each thing that could not be used.
    const QStringList& problems() const { return m_problems; }

private:
    enum class Existing { Ask, Replace, Cancel };

    std::vector<drawing::LayerState> statesOf(const QString& path);
    bool mayReplace(const QString& name);

    const drawing::Drawing& m_drawing;
    std::vector<drawing::LayerState> m_read;
    QStringList m_problems;
    Existing m_existing = Existing::Ask; ///< How to treat states that already exist.
};
