#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace drawing {

/// A layer state and where it is stored.
struct LayerStateEntry
{
    QString name;
    quint64 handle = 0; ///< The handle of its object; 0 for a state kept beside the drawing.
    QByteArray aside;   ///< The tags of a state that is kept beside the drawing.
};

/// The layer states of a drawing in their order, and the dictionary that lists them.
struct LayerStateTable
{
    std::vector<LayerStateEntry> entries;
    quint64 dictionary = 0; ///< Its handle; 0 when there is none yet.
};

} // namespace drawing
