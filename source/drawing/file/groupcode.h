#pragma once

namespace drawing {

/// Group codes that mean the same wherever they stand, or in what the names say.
namespace group {

constexpr int kType = 0;
constexpr int kName = 2;
constexpr int kKey = 3; ///< Of a dictionary's entry, before its object.
constexpr int kHandle = 5;
constexpr int kLinetype = 6;
constexpr int kLayer = 8;
constexpr int kVariable = 9;
constexpr int kColor = 62;
constexpr int kHasAttributes = 66;
constexpr int kPaperSpace = 67;
constexpr int kFlags = 70;
constexpr int kSubclass = 100;
constexpr int kEmbedded = 101; ///< Begins an object within another one.
constexpr int kBrace = 102;    ///< Begins and ends a group that an application keeps.
constexpr int kDimStyleHandle = 105;
constexpr int kCloning = 280; ///< What becomes of an XRECORD's or dictionary's copies.
constexpr int kPlotted = 290;
constexpr int kSoftPointer = 330; ///< The first one of an object is its owner.
constexpr int kHardPointer = 340;
constexpr int kMaterial = 347;
constexpr int kSoftOwner = 350;
constexpr int kHardOwner = 360;
constexpr int kLineweight = 370;
constexpr int kPlotStyle = 390;
constexpr int kTrueColor = 420;
constexpr int kColorName = 430;
constexpr int kTransparency = 440;
constexpr int kComment = 999;

// Extended data, always behind everything else.
constexpr int kXdata = 1000; ///< All codes from here on; as such a text.
constexpr int kApplication = 1001;
constexpr int kXdataLayer = 1003;
constexpr int kXdataHandle = 1005;
constexpr int kXdataLong = 1071;

/// Whether a group points at what goes with it.
constexpr bool isOwning(int code)
{
    return code == kSoftOwner || code == kHardOwner;
}

/// Whether a group holds the handle of something else.
constexpr bool isPointer(int code)
{
    return (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 480 ||
           code == 481 || code == kXdataHandle;
}

} // namespace group

} // namespace drawing
