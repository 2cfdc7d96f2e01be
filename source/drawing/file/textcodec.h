#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

namespace drawing {

/// Turns the values of a drawing file into text and back.
///
/// Nothing is lost on the way: a byte that means nothing in the code page becomes U+FFFD with its
/// two hexadecimal digits behind it, and comes out as that byte again.
class TextCodec
{
public:
    /// Whether the file writes control characters as they are, or as a caret and a letter.
    enum class Controls { Caret, Raw };

    /// Windows code page 1252, what a file that names no code page is in.
    TextCodec();
    /// For a file with these header variables: UTF-8 from version AC1021 on, else the code page. A
    /// code page nobody knows is taken for 1252.
    TextCodec(std::string_view version, std::string_view codePage);
    /// Nothing for a code page nobody knows.
    static std::optional<TextCodec> ofCodePage(std::string_view name);
    static TextCodec utf8();

    void setControls(Controls controls) { m_controls = controls; }
    /// The same for a file that is written anew: U+FFFD and digits behind it are plain text there.
    TextCodec forNewFile() const;

    /// The text of a value: carets before letters, `\U+XXXX` (UTF-16 code units) and `\M+nXXXX`
    /// (bytes of one of five code pages) resolved.
    QString decode(std::string_view value) const;
    /// The bytes of a text; what the code page lacks goes out as `\U+XXXX`, control characters,
    /// which would end the line, with a caret.
    QByteArray encode(const QString& text) const;

    /// Whether all of these bytes mean something in the code page; a double-byte one tells, in most
    /// of the others nearly every byte does.
    bool canDecode(std::string_view bytes) const;
    bool isDoubleByte() const; ///< Of the Chinese, Japanese and Korean ones.
    QString title() const;     ///< For users: `简体中文 GBK (ANSI_936)`.

    friend bool operator==(const TextCodec& a, const TextCodec& b)
    {
        return a.m_charset == b.m_charset;
    }

private:
    explicit TextCodec(const QByteArray& charset) : m_charset(charset) {}

    QString decodePage(std::string_view bytes) const;
    QString withLettersMarked(const QString& text) const;
    QByteArray encodedPoint(const QString& point) const;
    QByteArray encodedControl(QChar c) const;

    QByteArray m_charset; // As the system's converter knows it.
    Controls m_controls = Controls::Caret;
    bool m_isNewFile = false;
};

/// What the texts of a file tell of the code page they are in.
class TextEvidence
{
public:
    /// `text` may be a value or a whole file of text.
    void add(std::string_view text);

    bool isAscii() const { return m_isWhole && m_pairs == 0 && m_longer == 0; }
    /// Whether all is UTF-8 and not all ASCII. Pairs of bytes say little where the code page named
    /// is a double-byte one itself.
    bool speaksForUtf8(const TextCodec& named) const;

private:
    bool m_isWhole = true; ///< Nothing but UTF-8 so far.
    qint64 m_pairs = 0;    ///< Sequences of two bytes.
    qint64 m_longer = 0;   ///< Sequences of three or four.
};

} // namespace drawing
