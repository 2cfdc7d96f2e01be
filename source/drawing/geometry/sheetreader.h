#pragma once

#include "drawingdata.h"
#include "geometryreader.h"
#include "sheet.h"

namespace drawing {

/// Reads the sheet of the layout shown.
class SheetReader
{
public:
    /// The parts are those of the drawing; both must outlive this.
    SheetReader(const Drawing& drawing, const DrawingData& parts);
    Sheet read();

private:
    void readPaper(Sheet& sheet) const;
    SheetViewport readViewport(int entity);
    std::vector<QPointF> outlineOf(quint64 handle, const Entity& viewport);

    const Drawing& m_drawing;
    const DrawingData& m_parts;
    LinetypePatterns m_linetypes;
    EntityReader m_reader;
};

} // namespace drawing
