#pragma once

#include "editjournal.h"

#include <QString>

#include <vector>

namespace drawing {

/// A layer state and where its tags stand.
struct LayerStateEntry
{
    QString name;
    EditPlace place; ///< Of the object: a range of the file, or an insertion.
    qint64 end = -1;
    quint64 handle = 0;
    QByteArray aside; ///< The tags of a state that is kept beside the drawing.
};

/// The layer states of a drawing in their order, and the dictionary that lists them.
struct LayerStateTable
{
    std::vector<LayerStateEntry> entries;
    quint64 dictionary = 0; ///< Its handle; 0 when there is none yet.
    EditPlace place;
    qint64 end = -1;
};

} // namespace drawing
