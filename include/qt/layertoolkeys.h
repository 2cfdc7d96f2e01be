#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys, besides those of the records, that the dialogs for deleting, changing to and merging
/// layers share with their commands. The spellings are agreed and must stay as they are.
namespace layertoolkey {

// Deleting layers. The chosen records carry `layerkey::kIsSelected`.
/// Answer on the root: whether any of the chosen layers is referenced inside a block definition.
inline constexpr char kIsExistBlock[] = "IsExistBlock";

// Changing objects to another layer.
/// The name of the layer to be created. It stands in the last record, whichever layer that record
/// is for.
inline constexpr char kNewLayer[] = "NewLayer";

// Merging layers.
/// In the first record: whether the dialog asks for the source layers (true) or for the target
/// layer.
inline constexpr char kIsFrom[] = "IsFrom";
/// In the first record, when the dialog asks for the target: the number of block references
/// concerned.
inline constexpr char kBlockReferences[] = "blockrefcout";
/// In each record, when the dialog asks for the target: whether the layer is one of the sources.
inline constexpr char kSourceLayer[] = "SoucLayer";

} // namespace layertoolkey

/// The request of the dialog that deletes layers.
enum LayerDeleteRequest { kDeleteAskBlocks = 6 };

} // namespace vnsi
