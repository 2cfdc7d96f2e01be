#pragma once

namespace vnsi {

/// The keys of a layer record, shared by dialogs and commands.
namespace layerkey {
inline constexpr char kList[] = "LayerList";
inline constexpr char kName[] = "LayerName";
inline constexpr char kStatus[] = "CurLayer";
inline constexpr char kOff[] = "Off";
inline constexpr char kFrozen[] = "Frozen";
inline constexpr char kLock[] = "Lock";
inline constexpr char kColor[] = "Color"; ///< An object that holds the two keys below.
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
/// Whether the layer is chosen in a list of layers. It does not mean a selected row of the
/// manager's table.
inline constexpr char kIsSelected[] = "IsSelected";
} // namespace layerkey

/// The values of "CurLayer" in a record: the layer's status, or the action that a dialog asks the
/// command to carry out.
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

/// The keys on the root, besides the list, that the Layer Properties Manager and its command share.
namespace managerkey {
inline constexpr char kSelectCount[] = "SelectCount";
/// The row selected last, in the order of the table's selection ranges. Only present with a
/// selection.
inline constexpr char kLastSelectedIndex[] = "LastSelectedIndex";
/// The largest selected row. Only present with a selection.
inline constexpr char kLastIndex[] = "LastIndex";
/// The widths of the columns in pixels, an array of ints. The command keeps them between two
/// openings of the manager.
inline constexpr char kColumnWidths[] = "ColumnWidthList";
} // namespace managerkey

/// The requests of the Layer Properties Manager.
enum LayerManagerRequest {
    kManagerNewLayer = 0, ///< Add the record of a new layer to the list.
    /// Records were marked or unmarked for deletion; the next `kManagerApply` deletes them.
    kManagerDelete = 1,
    kManagerApply = 4 ///< Carry out what the modified records ask for.
};

} // namespace vnsi
