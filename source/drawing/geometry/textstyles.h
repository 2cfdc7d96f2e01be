#pragma once

#include <QHash>
#include <QString>

namespace drawing {

class DrawingFile;

/// What a text style does to the letters of paragraphs; single lines of text say it themselves.
struct TextStyle
{
    double widthFactor = 1;
    double oblique = 0; ///< Degrees, to the right.
};

/// The text styles of a drawing.
class TextStyles
{
public:
    explicit TextStyles(const DrawingFile& file);

    /// By name, without regard to letter case; plain for one that is not there.
    TextStyle find(const QString& name) const;
    TextStyle find(quint64 handle) const { return m_byHandle.value(handle); }

private:
    QHash<QString, TextStyle> m_byName; ///< Folded.
    QHash<quint64, TextStyle> m_byHandle;
};

} // namespace drawing
