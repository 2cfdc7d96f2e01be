#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

class QTextCodec;

namespace drawing {

/// Turns the values of a drawing file into text and back.
class TextCodec
{
public:
    /// Windows code page 1252, what a file that names no code page is in.
    TextCodec();
    /// For a file with these header variables: UTF-8 from version AC1021 on, else the code page. A
    /// code page nobody knows is taken for 1252.
    TextCodec(std::string_view version, std::string_view codePage);

    /// The text of a value, `\U+XXXX` escapes (UTF-16 code units) resolved.
    QString decode(std::string_view value) const;
    /// The bytes of a text; what the code page lacks goes out as `\U+XXXX`, and so do control
    /// characters, which would end the line.
    QByteArray encode(const QString& text) const;

    /// Whether all of these bytes mean something in the code page; a double-byte one tells, in most
    /// of the others nearly every byte does.
    bool canDecode(std::string_view bytes) const;
    bool isDoubleByte() const; ///< Of the Chinese, Japanese and Korean ones.
    QString name() const;      ///< As its readers know it: `UTF-8`, `GBK`, `windows-1252`.

private:
    bool encodePoint(const QString& text, int at, int units, QByteArray& bytes) const;

    QTextCodec* m_codec = nullptr; // Owned by Qt; null for UTF-8.
};

} // namespace drawing
