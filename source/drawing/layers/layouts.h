#pragma once

#include "file/tag.h"

#include <QString>

#include <vector>

namespace drawing {

class DrawingFile;
class EntityTable;
struct Entity;

/// A layout: a sheet with its viewports.
struct Layout
{
    QString name;   ///< Empty in formats without layout names.
    int block = -1; ///< The index of the block that holds its entities; -1 when there is none.
    /// Whether its entities are in the ENTITIES section; those of other layouts are in their block.
    bool isActive = false;
    ByteRange record; ///< The range of its LAYOUT object; null in formats without such objects.
    /// The entity indices of its viewports, without the sheet's own. The last active one comes
    /// first.
    std::vector<int> viewports;
};

/// Whether the entity is on this sheet.
bool holds(const Layout& layout, const Entity& entity);

/// The layouts in the order of their tabs. A file without layout names has exactly one.
std::vector<Layout> readLayouts(const DrawingFile& file, const EntityTable& entities);

/// The layouts of a drawing, and which of them or model space is shown.
class LayoutTable
{
public:
    struct State
    {
        bool modelSpace = true; ///< Whether model space is shown (TILEMODE).
        int layout = 0;         ///< The layout that is shown or was shown last.

        bool operator==(const State& other) const
        {
            return modelSpace == other.modelSpace && layout == other.layout;
        }
    };

    void load(DrawingFile& file, const EntityTable& entities);

    const std::vector<Layout>& all() const { return m_layouts; } ///< At least one.
    const Layout& shown() const { return m_layouts[static_cast<size_t>(m_state.layout)]; }
    bool isModelSpace() const { return m_state.modelSpace; }
    int shownIndex() const { return m_state.layout; }
    bool isShown(const Entity& entity) const;
    /// The entity index of the current viewport of the shown layout: the one set by
    /// `setCurrentViewport`, else the one that was last active, else the first. -1 in model space
    /// and when the layout has no viewport.
    int currentViewport(const EntityTable& entities) const;
    /// Makes a viewport of the shown layout the current one. Returns false when it is not on that
    /// layout. The choice is neither written to the file nor part of the state.
    bool setCurrentViewport(int viewport);

    void showModelSpace(DrawingFile& file, bool modelSpace);
    void showLayout(DrawingFile& file, int layout);

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    std::vector<Layout> m_layouts; ///< The current viewport comes first in each layout.
    State m_state;
};

} // namespace drawing
