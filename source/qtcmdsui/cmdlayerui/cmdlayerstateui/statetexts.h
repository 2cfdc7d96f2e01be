#pragma once

#include "hostcodes.h"
#include "statekeys.h"
#include "vnjson.h"

#include <QStringList>

/// Functions that the dialogs of layer states share.
namespace vnsi::layerstates {

inline constexpr wchar_t kService[] = L"Dialog/CmdLayer";
/// The message about a name with characters that are not allowed, and its caption.
QString badCharactersText();
QString badCharactersCaption();

/// The node of a tree that holds the data of `element`; empty when there is none.
VnJsonPtr element(const VnJsonPtr& tree, StateElement element);
/// The list of an element; empty when there is none.
VnJsonPtr list(const VnJsonPtr& element);

/// The text under `key`; empty for an empty node.
QString text(const VnJsonPtr& node, const char* key);
/// Whether a state's record says that the state comes from an external reference. Letter case is
/// ignored.
bool isFromReference(const VnJsonPtr& state);

/// Shows a message with custom buttons. Returns the number of the pressed button, counted from 0,
/// or `fallback` when none was pressed.
int ask(const QString& caption, const QString& text, const QStringList& buttons, int fallback,
    int icon = kVnIconInformation);

} // namespace vnsi::layerstates
