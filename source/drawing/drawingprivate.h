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
    QFile file; // Keeps the mapping; its inode lives on when saving replaces the file.
    DrawingData data;
    UndoStack steps;
    QString stepName;
    bool stepIsOpen = false;
    bool stepIsPublished = false;
    bool wasModified = false;
    bool isIncomplete = false;
};

/// The inside of a drawing, for what edits it in ways that are no concern of its users.
struct DrawingAccess
{
    static DrawingData& data(Drawing& drawing);
    static const DrawingData& data(const Drawing& drawing);
};

} // namespace drawing
