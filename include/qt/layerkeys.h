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

} // namespace vnsi
