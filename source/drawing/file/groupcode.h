#pragma once

namespace drawing {

/// Group codes that have the same meaning everywhere, or within the context that their name states.
namespace group {

constexpr int kType = 0;
constexpr int kName = 2;
constexpr int kKey = 3; ///< The key of a dictionary entry; it precedes the entry's object.
constexpr int kHandle = 5;
constexpr int kLinetype = 6;
constexpr int kLayer = 8;
constexpr int kVariable = 9;
constexpr int kColor = 62;
constexpr int kHasAttributes = 66;
constexpr int kPaperSpace = 67;
constexpr int kFlags = 70;
constexpr int kSubclass = 100;
constexpr int kEmbedded = 101; ///< Begins an embedded object.
constexpr int kBrace = 102;    ///< Begins and ends an application's group.
constexpr int kDimStyleHandle = 105;
constexpr int kCloning = 280; ///< How copies of an XRECORD or dictionary are treated.
constexpr int kPlotted = 290;
constexpr int kSoftPointer = 330; ///< The first one in an object is its owner.
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

// Extended data, which always comes last.
constexpr int kXdata = 1000; ///< A text. All group codes from here on are extended data.
constexpr int kApplication = 1001;
constexpr int kXdataLayer = 1003;
constexpr int kXdataHandle = 1005;
constexpr int kXdataLong = 1071;

/// Whether a group refers to an object that it owns.
constexpr bool isOwning(int code)
{
    return code == kSoftOwner || code == kHardOwner;
}

/// Whether a group holds the handle of another object.
constexpr bool isPointer(int code)
{
    return (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 480 ||
           code == 481 || code == kXdataHandle;
}

} // namespace group

} // namespace drawing
