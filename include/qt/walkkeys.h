#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys, besides those of the records, that the layer walk's dialogs and the command share.
namespace walkkey {

/// The layer tree that the dialog is given. It also holds the drawing's layer states
/// (`statekey::kList`) for the dialog that names a new one. The command may hand back a new layer
/// tree under this key. Requests carry the dialog's own tree under `requestkey::kParameter`; a tree
/// that the command puts there, or under `kResult`, also counts as handed back.
inline constexpr char kLayers[] = "LayerStateMgr";
/// 0 when the command refused. A missing answer counts as success.
inline constexpr char kResult[] = "result";

/// In a record: whether the layer is pinned, so that it always stays on.
inline constexpr char kAlwaysShow[] = "bAlwaysShow";

// Arguments of requests, written on the root.
/// Sent with a click on a row: the name of the layer that was current before. The command may make
/// the clicked layer current while the old one is hidden.
inline constexpr char kOldCurrent[] = "oldlaywalkLName";
inline constexpr char kPurgeOne[] = "laywalkselLName";
inline constexpr char kPurgeSeveral[] = "laywalkselLNameS";

// Answers, written on the root.
inline constexpr char kLayerCount[] = "LayerCount";
inline constexpr char kSelectedCount[] = "SelectLayerCount";
inline constexpr char kSelectedEntities[] = "SelectLayerEntitys"; // The misspelt key is agreed.
inline constexpr char kPickedNames[] = "laywalkpickLNameS";

} // namespace walkkey

/// The names of the walk's dialogs and of the service that makes them.
namespace walkdialog {
inline constexpr wchar_t kService[] = L"Dialog/CmdLayer";
inline constexpr wchar_t kWalk[] = L"Dialog/CmdLaywalk";
inline constexpr wchar_t kVerify[] = L"Dialog/CmdLaywalk/Verify";
} // namespace walkdialog

/// The walk's requests, written under "marker".
enum WalkRequest {
    kWalkSaveState = 1,
    kWalkApply = 4, ///< Show the layers at once as the tree has them.
    kWalkCount = 7,
    kWalkPurge = 12,
    /// Hide the dialog, let the user pick entities, and answer an array with the names of their
    /// layers. A command that does not know this request leaves the dialog unchanged.
    kWalkPick = 13
};

} // namespace vnsi
