#pragma once

#include "layers/layer.h"
#include "verb.h"

namespace layertool {

/// A layer and the name it is to have.
struct Renaming
{
    drawing::LayerId layer = drawing::LayerId::None;
    QString to;
};

/// What became of a renaming.
struct Renamed
{
    enum class Outcome : quint8 { Renamed, Merged, Refused };

    drawing::LayerId layer = drawing::LayerId::None;
    QString from;
    QString to;
    Outcome outcome = Outcome::Refused;
    QString cause; ///< A sentence; why it was refused.
};

/// The English word for an outcome.
const char* outcomeWord(Renamed::Outcome outcome);

/// Gives layers their names in the open step, in an order in which none stands in another's way;
/// names may go round in circles. Where a layer that keeps its name has the one wanted, the two are
/// merged when `merges` says so; otherwise, and for names that the drawing refuses, the renaming is
/// refused and the layer stays as it was. An error takes back nothing: the caller rolls back.
Expected<std::vector<Renamed>> renameLayers(
    drawing::Drawing& drawing, const std::vector<Renaming>& renamings, bool merges);

} // namespace layertool
