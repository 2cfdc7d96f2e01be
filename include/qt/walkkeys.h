#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys that the layer walk's dialogs and the command share, besides those of the records.
namespace walkkey {

/// The layer tree, which holds the drawing's layer states as well (`statekey::kList`), for the
/// dialog that names a new one: what the dialog is given, what the command hands back when it made
/// it anew. Requests carry the dialog's own copy of it under `requestkey::kParameter`. What is
/// found there afterwards in that copy's place, or under `kResult`, counts as handed back as well.
inline constexpr char kLayers[] = "LayerStateMgr";
/// 0 where the command refused; what it leaves alone counts as done.
inline constexpr char kResult[] = "result";

/// In a record: whether the layer is pinned and stays on.
inline constexpr char kAlwaysShow[] = "bAlwaysShow";

// On the root: what a request needs to know.
/// With a click on a row: the name of the layer that was current before. The command may make the
/// clicked layer current while that one is hidden.
inline constexpr char kOldCurrent[] = "oldlaywalkLName";
inline constexpr char kPurgeOne[] = "laywalkselLName";
inline constexpr char kPurgeSeveral[] = "laywalkselLNameS";

// On the root: answers.
inline constexpr char kLayerCount[] = "LayerCount";
inline constexpr char kSelectedCount[] = "SelectLayerCount";
inline constexpr char kSelectedEntities[] = "SelectLayerEntitys"; // The key's agreed spelling.
inline constexpr char kPickedNames[] = "laywalkpickLNameS";

} // namespace walkkey

/// The dialogs of the walk and the service that makes them.
namespace walkdialog {
inline constexpr wchar_t kService[] = L"Dialog/CmdLayer";
inline constexpr wchar_t kWalk[] = L"Dialog/CmdLaywalk";
inline constexpr wchar_t kVerify[] = L"Dialog/CmdLaywalk/Verify";
} // namespace walkdialog

/// The walk's requests, under "marker".
enum WalkRequest {
    kWalkSaveState = 1,
    kWalkApply = 4, ///< Show the layers as the tree has them, at once.
    kWalkCount = 7,
    kWalkPurge = 12,
    /// Let the user pick entities while the dialog is hidden, and answer the names of their layers
    /// in an array. A command that does not know it leaves the dialog as it was.
    kWalkPick = 13
};

} // namespace vnsi
