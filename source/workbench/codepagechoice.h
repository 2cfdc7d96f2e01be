#pragma once

#include <QByteArray>

#include <optional>

class QWidget;

namespace drawing {
class TextCodec;
}

/// Lets the user choose or type the code page that a drawing's texts are to be read in; empty for
/// what its file says, nothing when it was cancelled. `now` is the one chosen at first; it may be
/// null. A name that nobody knows is asked for again.
std::optional<QByteArray> chooseCodePage(QWidget* parent, const drawing::TextCodec* now);
