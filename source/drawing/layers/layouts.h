#pragma once

#include <QString>

#include <vector>

namespace drawing {

struct DrawingData;
struct Entity;

/// A layout: a sheet, and the viewports on it.
struct Layout
{
    QString name;   ///< Empty in formats that do not name theirs.
    int block = -1; ///< Index of the definition that holds its entities; -1 when there is none.
    /// Its entities stand in the ENTITIES section; those of other layouts in their definition.
    bool isActive = false;
    /// Entities by their indices: the viewport last active in it first, the sheet's own left out.
    std::vector<int> viewports;
};

/// Whether the entity stands on this sheet.
bool holds(const Layout& layout, const Entity& entity);

/// The layouts in the order of their tabs; a file that does not name any has one.
std::vector<Layout> readLayouts(DrawingData& data);

} // namespace drawing
