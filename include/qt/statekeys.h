#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys that the dialogs of layer states and the command share, besides those of layer records.
/// Where their spellings differ from one another, that is agreed.
namespace statekey {

/// The root's array of elements. A request is sent on one of them and has its place in the array as
/// its "parameter".
inline constexpr char kElements[] = "LayerStateMgr";
/// Of the manager's element the states, of the editor's the layers of the state that is edited.
inline constexpr char kList[] = "LayerStateList";
/// The name of the state that the drawing is in.
inline constexpr char kCurrent[] = "currentLState";

// A state in the manager's list.
inline constexpr char kName[] = "LayerStateName";
inline constexpr char kSpace[] = "space";
inline constexpr char kIsSameAsDrawing[] = "isSame2DWG";
inline constexpr char kDescription[] = "desc";
inline constexpr char kOwnMask[] = "LayerStateMaskIs";

/// The space of a state that comes from an external reference. Dialogs tell such states by it, so
/// it is never translated.
inline constexpr wchar_t kReferenceSpace[] = L"外部参照";

// What the dialog for a new state answers, besides the description.
inline constexpr char kNewName[] = "LayerStateNewName";

// What the manager's requests say.
inline constexpr char kDeletesOne[] = "DeleteNameOne";
inline constexpr char kDeletedName[] = "LayerStateDeleteName";
inline constexpr char kDeletedNames[] = "LayerStateDeleteNames";
inline constexpr char kNameInDeleted[] = "LayerSDeleteName"; ///< In each of them.
inline constexpr char kOldName[] = "OldName";
inline constexpr char kRenamedTo[] = "NewName";
inline constexpr char kDescribedAs[] = "NewDescName";
inline constexpr char kSavedName[] = "LayerStateSaveName";
inline constexpr char kMask[] = "LayerStateMask";
inline constexpr char kRestoredName[] = "LStateRestoreName";
inline constexpr char kTurnsOthersOff[] = "LStateTCheckBox";    ///< A number, 0 or 1.
inline constexpr char kOverridesViewport[] = "LStateWCheckBox"; ///< A bool.
inline constexpr char kImportPaths[] = "LStatefilePaths";
inline constexpr char kImportBeside[] = "LayerStateList1"; ///< The states there already.
inline constexpr char kImportSkipsReferences[] = "LStateRefLayer";
inline constexpr char kExportPath[] = "LStatefilePathsSW";
inline constexpr char kExportName[] = "LStateName";

// The command's answers, all bools but the list.
inline constexpr char kRestoreCloses[] = "LayerStateOKClose";
inline constexpr char kImportedList[] = "LayerStateListHaveRef";
inline constexpr char kImportSucceeded[] = "LayerStateListRefOK";
inline constexpr char kImportRestores[] = "LayerStateYesNoRestore";

// The editor's element.
inline constexpr char kEditedName[] = "selectItemName";
inline constexpr char kCandidates[] = "NeedAddlayerList";
inline constexpr char kIsRemoved[] = "Delete"; ///< In a layer that the user took out.

// What the manager keeps among the user's settings.
inline constexpr wchar_t kConfigSection[] = L"LayerState_dialog";
inline constexpr char kConfigHidesReferences[] = "isRefLayerCBox";
inline constexpr char kConfigOverridesViewport[] = "isWCheckBox";
inline constexpr char kConfigTurnsOthersOff[] = "isTCheckBox";
inline constexpr char kConfigIsExpanded[] = "IsExpand";

} // namespace statekey

/// The dialogs of layer states.
namespace statedialog {
inline constexpr wchar_t kManager[] = L"Dialog/CmdLayerState";
inline constexpr wchar_t kNew[] = L"Dialog/CmdLayerStateNew";
inline constexpr wchar_t kEdit[] = L"Dialog/CmdLayerStateEdit";
inline constexpr wchar_t kAddLayers[] = L"Dialog/CmdLayerStateAddNewLayer";
} // namespace statedialog

/// The elements that requests are sent on.
enum StateElement { kStateManager = 1, kStateEditor = 2, kStateElementCount };

/// The manager's requests, on its own element.
enum StateRequest {
    kStateCreate = 1,
    kStateDelete = 2,
    kStateRename = 3,
    kStateSave = 4,
    kStateRestore = 5,
    kStateImport = 6,
    kStateExport = 7, ///< Sent on the tree of the file dialog.
    kStateDescribe = 8
};

/// The requests on the editor's element. The manager sends the first one, before it opens the
/// editor.
enum StateEditRequest { kStateEditPrepare = 0, kStateEditStore = 1, kStateEditRemove = 2 };

/// What restoring a state brings back, as the bits of its mask.
enum StateMask {
    kMaskOnOff = 1,
    kMaskFreeze = 2,
    kMaskLock = 4,
    kMaskPlot = 8,
    kMaskNewViewportFreeze = 16,
    kMaskColor = 32,
    kMaskLinetype = 64,
    kMaskLineweight = 128,
    kMaskPlotStyle = 256,
    kMaskCurrentViewport = 512,
    kMaskTransparency = 1024
};

} // namespace vnsi
