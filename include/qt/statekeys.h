#pragma once

#include "layerkeys.h"

namespace vnsi {

/// The keys, besides those of layer records, that the dialogs of layer states and the command
/// share. Some spellings are inconsistent; they are agreed and must stay as they are.
namespace statekey {

/// An array on the root. Each request is sent on one of its elements and carries that element's
/// index as its "parameter".
inline constexpr char kElements[] = "LayerStateMgr";
/// In the manager's element: the list of states. In the editor's element: the layers of the edited
/// state.
inline constexpr char kList[] = "LayerStateList";
/// The name of the state that the drawing is currently in.
inline constexpr char kCurrent[] = "currentLState";

// The keys of a state in the manager's list.
inline constexpr char kName[] = "LayerStateName";
inline constexpr char kSpace[] = "space";
inline constexpr char kIsSameAsDrawing[] = "isSame2DWG";
inline constexpr char kDescription[] = "desc";
inline constexpr char kOwnMask[] = "LayerStateMaskIs";

/// The value of the space key of a state that comes from an external reference. Dialogs recognise
/// such states by it, so it must never be translated.
inline constexpr wchar_t kReferenceSpace[] = L"外部参照";

// The keys of the answer of the dialog for a new state, besides the description.
inline constexpr char kNewName[] = "LayerStateNewName";

// The keys of the manager's requests.
inline constexpr char kDeletesOne[] = "DeleteNameOne";
inline constexpr char kDeletedName[] = "LayerStateDeleteName";
inline constexpr char kDeletedNames[] = "LayerStateDeleteNames";
inline constexpr char kNameInDeleted[] = "LayerSDeleteName"; ///< In each of `kDeletedNames`.
inline constexpr char kOldName[] = "OldName";
inline constexpr char kRenamedTo[] = "NewName";
inline constexpr char kDescribedAs[] = "NewDescName";
inline constexpr char kSavedName[] = "LayerStateSaveName";
inline constexpr char kMask[] = "LayerStateMask";
inline constexpr char kRestoredName[] = "LStateRestoreName";
inline constexpr char kTurnsOthersOff[] = "LStateTCheckBox";    ///< A number, 0 or 1.
inline constexpr char kOverridesViewport[] = "LStateWCheckBox"; ///< A bool.
inline constexpr char kImportPaths[] = "LStatefilePaths";
inline constexpr char kImportBeside[] = "LayerStateList1"; ///< The states that already exist.
inline constexpr char kImportSkipsReferences[] = "LStateRefLayer";
inline constexpr char kExportPath[] = "LStatefilePathsSW";
inline constexpr char kExportName[] = "LStateName";

// The command's answers. All are bools except the list.
inline constexpr char kRestoreCloses[] = "LayerStateOKClose";
inline constexpr char kImportedList[] = "LayerStateListHaveRef";
inline constexpr char kImportSucceeded[] = "LayerStateListRefOK";
inline constexpr char kImportRestores[] = "LayerStateYesNoRestore";

// The keys of the editor's element.
inline constexpr char kEditedName[] = "selectItemName";
inline constexpr char kCandidates[] = "NeedAddlayerList";
/// In a layer's record: the user removed the layer from the state.
inline constexpr char kIsRemoved[] = "Delete";

// The keys of what the manager keeps in the user's settings.
inline constexpr wchar_t kConfigSection[] = L"LayerState_dialog";
inline constexpr char kConfigHidesReferences[] = "isRefLayerCBox";
inline constexpr char kConfigOverridesViewport[] = "isWCheckBox";
inline constexpr char kConfigTurnsOthersOff[] = "isTCheckBox";
inline constexpr char kConfigIsExpanded[] = "IsExpand";

} // namespace statekey

/// The names of the dialogs of layer states.
namespace statedialog {
inline constexpr wchar_t kManager[] = L"Dialog/CmdLayerState";
inline constexpr wchar_t kNew[] = L"Dialog/CmdLayerStateNew";
inline constexpr wchar_t kEdit[] = L"Dialog/CmdLayerStateEdit";
inline constexpr wchar_t kAddLayers[] = L"Dialog/CmdLayerStateAddNewLayer";
} // namespace statedialog

/// The indices of the elements that requests are sent on.
enum StateElement { kStateManager = 1, kStateEditor = 2, kStateElementCount };

/// The manager's requests, sent on the manager's own element.
enum StateRequest {
    kStateCreate = 1,
    kStateDelete = 2,
    kStateRename = 3,
    kStateSave = 4,
    kStateRestore = 5,
    kStateImport = 6,
    kStateExport = 7, ///< Sent on the tree of the file dialog instead.
    kStateDescribe = 8
};

/// The requests sent on the editor's element. The manager sends the first one before it opens the
/// editor.
enum StateEditRequest { kStateEditPrepare = 0, kStateEditStore = 1, kStateEditRemove = 2 };

/// The bits of the mask that says which properties restoring a state brings back.
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
