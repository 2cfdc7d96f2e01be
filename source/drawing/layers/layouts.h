#pragma once

#include "file/tag.h"

#include <QString>

#include <vector>

namespace drawing {

class DrawingFile;
class EntityTable;
struct Entity;

/// A layout: a sheet, and the viewports on it.
struct Layout
{
    QString name;   ///< Empty in formats that do not name theirs.
    int block = -1; ///< Index of the definition that holds its entities; -1 when there is none.
    /// Its entities stand in the ENTITIES section; those of other layouts in their definition.
    bool isActive = false;
    ByteRange record; ///< Of its LAYOUT object; null in formats without.
    /// Entities by their indices: the viewport last active in it first, the sheet's own left out.
    std::vector<int> viewports;
};

/// Whether the entity stands on this sheet.
bool holds(const Layout& layout, const Entity& entity);

/// The layouts in the order of their tabs; a file that does not name any has one.
std::vector<Layout> readLayouts(const DrawingFile& file, const EntityTable& entities);

/// The layouts of a drawing, and what of them is shown.
class LayoutTable
{
public:
    struct State
    {
        bool modelSpace = true; ///< Model space is shown: TILEMODE.
        int layout = 0;         ///< The one shown, or shown last.

        bool operator==(const State& other) const
        {
            return modelSpace == other.modelSpace && layout == other.layout;
        }
    };

    void load(DrawingFile& file, const EntityTable& entities);

    const std::vector<Layout>& all() const { return m_layouts; } ///< One at least.
    const Layout& shown() const { return m_layouts[static_cast<size_t>(m_state.layout)]; }
    bool isModelSpace() const { return m_state.modelSpace; }
    int shownIndex() const { return m_state.layout; }
    bool isShown(const Entity& entity) const;
    /// The entity that is the current viewport of the layout shown: the one made it, else the one
    /// last active in it, else its first; -1 in model space and where the layout has none.
    int currentViewport(const EntityTable& entities) const;
    /// Makes a viewport the current one of the layout shown; false when it stands elsewhere. Not
    /// kept in the file, and no part of the state.
    bool setCurrentViewport(int viewport);

    void showModelSpace(DrawingFile& file, bool modelSpace);
    void showLayout(DrawingFile& file, int layout);

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    std::vector<Layout> m_layouts; ///< Their current viewports come first.
    State m_state;
};

} // namespace drawing
