#pragma once

#include "layers/layer.h"

#include <vector>

namespace drawing {

class Drawing;

/// A request to rename a layer.
struct LayerRename
{
    LayerId layer = LayerId::None;
    QString name;
};

/// The outcome of a rename.
struct LayerRenamed
{
    enum class Outcome : quint8 { Renamed, Merged, Refused };

    LayerId layer = LayerId::None;
    QString from;
    QString to;
    Outcome outcome = Outcome::Refused;
    QString cause; ///< A sentence that says why the rename was refused.
    /// The layer that already has the name, when that is the reason for a refusal; otherwise empty.
    QString holder;
};

/// What to do when a layer that keeps its name already has the wanted name.
enum class NameClash : quint8 {
    Refuse,
    Merge ///< Move the contents of the renamed layer to the other one and delete the renamed layer.
};

/// Renames layers in the open step. It finds an order in which no rename blocks another one, so
/// names may be exchanged in cycles. When several layers want the same name, the first one gets it,
/// unless one of them is part of a cycle, which could not be carried out otherwise. When there are
/// several renames of one layer, the first one counts. Returns the outcome of each rename that has
/// an effect, in their order. A layer whose rename is refused keeps its name; no layer is left with
/// a name that it neither had nor was meant to get.
std::vector<LayerRenamed> renameLayers(
    Drawing& drawing, const std::vector<LayerRename>& renames, NameClash clash = NameClash::Refuse);

} // namespace drawing
