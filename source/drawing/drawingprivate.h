#pragma once

#include "drawing.h"
#include "drawingdata.h"
#include "undostack.h"

#include <QFile>

namespace drawing {

class Drawing::Private
{
public:
    Expected<void> map(const QString& fileName);

    QString path;
    QFile file; // Keeps the mapping alive; the inode remains valid when saving replaces the file.
    DrawingData data;
    UndoStack steps;
    QString stepName;
    bool stepIsOpen = false;
    bool stepIsPublished = false;
    bool wasModified = false;
    bool isIncomplete = false;
};

/// Access to the inside of a drawing, for edits that are not part of its public interface.
struct DrawingAccess
{
    static DrawingData& data(Drawing& drawing);
    static const DrawingData& data(const Drawing& drawing);
};

} // namespace drawing
