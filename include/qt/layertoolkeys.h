#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys that the dialogs deleting, changing to and merging layers share with their commands,
/// besides those of the records. The spellings are agreed.
namespace layertoolkey {

// Deleting: the chosen records carry `layerkey::kIsSelected`.
/// Answer on the root: whether any chosen layer is referenced inside a block definition.
inline constexpr char kIsExistBlock[] = "IsExistBlock";

// Changing to a layer.
/// In the last record, of whatever layer it is: the name of the layer to be made.
inline constexpr char kNewLayer[] = "NewLayer";

// Merging.
/// In the first record: whether the sources are asked for, or the target.
inline constexpr char kIsFrom[] = "IsFrom";
/// In the first record, when the target is asked for: how many block references are concerned.
inline constexpr char kBlockReferences[] = "blockrefcout";
/// In each record, when the target is asked for: whether it is one of the sources.
inline constexpr char kSourceLayer[] = "SoucLayer";

} // namespace layertoolkey

/// The requests of the dialog that deletes layers.
enum LayerDeleteRequest { kDeleteAskBlocks = 6 };

} // namespace vnsi
