#pragma once

namespace vnsi {

/// The keys of a layer record, which dialogs and commands share.
namespace layerkey {
inline constexpr char kList[] = "LayerList";
inline constexpr char kName[] = "LayerName";
inline constexpr char kStatus[] = "CurLayer";
inline constexpr char kOff[] = "Off";
inline constexpr char kFrozen[] = "Frozen";
inline constexpr char kLock[] = "Lock";
inline constexpr char kColor[] = "Color"; ///< Holds the two that follow.
inline constexpr char kColorMethod[] = "Color/clrMethod";
inline constexpr char kColorValue[] = "Color/selectClr";
inline constexpr char kLinetype[] = "linetype/name";
inline constexpr char kLineWidth[] = "LineWidth";
inline constexpr char kTransparency[] = "Transparency";
inline constexpr char kPlotStyle[] = "PlotStyle";
inline constexpr char kPrint[] = "Print";
inline constexpr char kVPortFrozen[] = "VPortFrozen";
inline constexpr char kDescription[] = "Description";
inline constexpr char kSelected[] = "Selected";
inline constexpr char kDepend[] = "bDepend";
inline constexpr char kUsed[] = "Used";
inline constexpr char kModified[] = "Modified";
/// Chosen among the layers of a list, as opposed to a selected row of the manager's table.
inline constexpr char kIsSelected[] = "IsSelected";
} // namespace layerkey

/// What "CurLayer" of a record says, and what dialogs write into it for the command to do.
enum LayerStatus {
    kLayerCurrent = 0,
    kLayerOrdinary = 1,
    kLayerDelete = 2,
    kLayerNewTarget = 3,
    kLayerTarget = 4,
    kLayerMergeSource = 5,
    kLayerMergeTarget = 11
};

/// The keys that every request carries.
namespace requestkey {
inline constexpr char kRequestCode[] = "marker";
inline constexpr char kParameter[] = "parameter";
} // namespace requestkey

/// The keys that the Layer Properties Manager and its command share on the root, besides the list.
namespace managerkey {
inline constexpr char kSelectCount[] = "SelectCount";
/// The row selected last, by the order of the table's ranges; only with a selection.
inline constexpr char kLastSelectedIndex[] = "LastSelectedIndex";
/// The largest selected row; only with a selection.
inline constexpr char kLastIndex[] = "LastIndex";
/// The columns' widths in pixels, an array of ints. The command keeps them from one opening to the
/// next.
inline constexpr char kColumnWidths[] = "ColumnWidthList";
} // namespace managerkey

/// The manager's requests.
enum LayerManagerRequest {
    kManagerNewLayer = 0, ///< Add a record of a new layer to the list.
    kManagerDelete = 1, ///< Records were marked or unmarked; they go with the next `kManagerApply`.
    kManagerApply = 4   ///< Carry out what the modified records say.
};

} // namespace vnsi
