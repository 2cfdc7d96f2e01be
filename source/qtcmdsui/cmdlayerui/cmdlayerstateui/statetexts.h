#pragma once

#include "hostcodes.h"
#include "statekeys.h"
#include "vnjson.h"

#include <QStringList>

/// What the dialogs of layer states share.
namespace vnsi::layerstates {

inline constexpr wchar_t kService[] = L"Dialog/CmdLayer";
/// What to say of a name with characters that names may not hold, and under which caption.
QString badCharactersText();
QString badCharactersCaption();

/// The node of a tree that holds the data of `element`; empty when there is none.
VnJsonPtr element(const VnJsonPtr& tree, StateElement element);
/// The list of an element; empty when there is none.
VnJsonPtr list(const VnJsonPtr& element);

/// The text under `key`; empty for an empty node.
QString text(const VnJsonPtr& node, const char* key);
/// Whether a record of a state says that it comes from an external reference, whatever the letter
/// case.
bool isFromReference(const VnJsonPtr& state);

/// Shows a message with buttons of its own; the number of the button from 0, `fallback` when none
/// was pressed.
int ask(const QString& caption, const QString& text, const QStringList& buttons, int fallback,
    int icon = kVnIconInformation);

} // namespace vnsi::layerstates
