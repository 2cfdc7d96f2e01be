#pragma once

#include "vnmessages.h"

#include <QString>

/// Texts and keys that the dialogs of layer states share.
namespace vnsi::layerstates {

/// The keys of the tree of states.
inline constexpr char kManager[] = "LayerStateMgr";
inline constexpr char kList[] = "LayerStateList";
inline constexpr char kName[] = "LayerStateName";
inline constexpr char kSpace[] = "space";
inline constexpr char kDescription[] = "desc";
inline constexpr char kCandidates[] = "NeedAddlayerList";

/// The element of "LayerStateMgr" a request is on; also its "parameter".
enum Element { kManagerElement = 1, kEditElement = 2 };

inline constexpr wchar_t kService[] = L"Dialog/CmdLayer";
inline constexpr wchar_t kBadCharactersCaption[] = L"图层状态 - 不支持的字符";
/// What to say of a name with characters that names may not hold.
OdString badCharactersText();

/// The node of a tree that holds the data of `element`; empty when there is none.
VnJsonPtr element(const VnJsonPtr& tree, Element element);

/// The text under `key`; empty for an empty node.
QString text(const VnJsonPtr& node, const char* key);
/// What a state of an external reference has as its space.
inline constexpr wchar_t kReferenceSpace[] = L"外部参照";
/// Whether a record of a state says so, whatever the letter case.
bool isFromReference(const VnJsonPtr& state);

/// Shows a message with buttons of its own; the number of the button from 0, `fallback` when none
/// was pressed.
int ask(const OdString& caption, const OdString& text,
    std::initializer_list<const wchar_t*> buttons, int fallback, int icon = kVnIconInformation);

} // namespace vnsi::layerstates
