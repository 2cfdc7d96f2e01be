#pragma once

#include "entities/entities.h"
#include "geometryreader.h"
#include "sheet.h"

namespace drawing {

/// Reads the sheet of the layout that is shown.
class SheetReader
{
public:
    /// The parts in `source` must outlive this object.
    explicit SheetReader(const GeometrySource& source);
    Sheet read();

private:
    void readPaper(Sheet& sheet) const;
    SheetViewport readViewport(int entity);
    std::vector<QPointF> outlineOf(quint64 handle, const Entity& viewport);

    const GeometrySource m_source;
    LinetypePatterns m_linetypes;
    EntityReader m_reader;
};

} // namespace drawing
