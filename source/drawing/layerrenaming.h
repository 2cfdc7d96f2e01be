#pragma once

#include "layers/layer.h"

#include <vector>

namespace drawing {

class Drawing;

/// The name that a layer is to have.
struct LayerRename
{
    LayerId layer = LayerId::None;
    QString name;
};

/// What became of a rename.
struct LayerRenamed
{
    enum class Outcome : quint8 { Renamed, Merged, Refused };

    LayerId layer = LayerId::None;
    QString from;
    QString to;
    Outcome outcome = Outcome::Refused;
    QString cause;  ///< A sentence; why it was refused.
    QString holder; ///< The layer that has the name and keeps it, where that is why; else empty.
};

/// What is done where a layer that keeps its name has the one wanted.
enum class NameClash : quint8 {
    Refuse,
    Merge ///< What is on the layer comes to the other one, and the layer goes.
};

/// Renames layers in the open step, in an order in which none stands in another's way; names may go
/// round in circles. Of several that want one name the first gets it, unless one of them is in a
/// circle, which could not go round otherwise. Tells of each rename that changes anything what
/// became of it, in their order; of several for one layer the first counts. A layer whose rename is
/// refused keeps its name; no layer is left under a name that it neither had nor was to have.
std::vector<LayerRenamed> renameLayers(
    Drawing& drawing, const std::vector<LayerRename>& renames, NameClash clash = NameClash::Refuse);

} // namespace drawing
