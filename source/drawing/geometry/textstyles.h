#pragma once

#include <QHash>
#include <QString>

namespace drawing {

class DrawingFile;

/// What a text style says about the letters of paragraphs. Single lines of text define this
/// themselves.
struct TextStyle
{
    double widthFactor = 1;
    double oblique = 0; ///< In degrees, to the right.
};

/// The text styles of a drawing.
class TextStyles
{
public:
    explicit TextStyles(const DrawingFile& file);

    /// The style of this name, ignoring letter case; the plain style for an unknown name.
    TextStyle find(const QString& name) const;
    TextStyle find(quint64 handle) const { return m_byHandle.value(handle); }

private:
    QHash<QString, TextStyle> m_byName; ///< The keys are folded names.
    QHash<quint64, TextStyle> m_byHandle;
};

} // namespace drawing
