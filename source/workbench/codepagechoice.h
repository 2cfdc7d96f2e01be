#pragma once

#include <QByteArray>

#include <optional>

class QWidget;

namespace drawing {
class TextCodec;
}

/// Lets the user choose or type the code page for a drawing's texts. Returns an empty name to use
/// the one that the file declares, and nothing when the user cancelled. `now` is preselected; it
/// may be null. An unknown name is asked for again.
std::optional<QByteArray> chooseCodePage(QWidget* parent, const drawing::TextCodec* now);
