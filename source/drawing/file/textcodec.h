#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

namespace drawing {

/// Converts the values of a drawing file to text and back.
///
/// The conversion loses nothing: a byte that is invalid in the code page becomes U+FFFD followed by
/// the byte's two hexadecimal digits, and is written as the same byte again.
class TextCodec
{
public:
    /// How the file writes control characters: as a caret and a letter, or unchanged.
    enum class Controls { Caret, Raw };

    /// Uses Windows code page 1252, which applies to a file that declares no code page.
    TextCodec();
    /// Chooses the encoding by a file's header variables: UTF-8 from version AC1021 on, otherwise
    /// the declared code page. An unknown code page is treated as 1252.
    TextCodec(std::string_view version, std::string_view codePage);
    /// Returns nothing for an unknown code page.
    static std::optional<TextCodec> ofCodePage(std::string_view name);
    static TextCodec utf8();

    void setControls(Controls controls) { m_controls = controls; }
    /// The same codec for a newly written file, in which U+FFFD followed by digits is plain text.
    TextCodec forNewFile() const;

    /// Converts a value to text. Carets before letters, `\U+XXXX` (UTF-16 code units) and
    /// `\M+nXXXX` (bytes in one of five code pages) are resolved.
    QString decode(std::string_view value) const;
    /// Converts text to bytes. Characters that the code page lacks are written as `\U+XXXX`.
    /// Control characters, which would end the line, are written with a caret.
    QByteArray encode(const QString& text) const;

    /// Whether all these bytes are valid in the code page. This is only informative for double-byte
    /// code pages; in most others nearly every byte is valid.
    bool canDecode(std::string_view bytes) const;
    bool isDoubleByte() const; ///< Whether it is a Chinese, Japanese or Korean code page.
    QString title() const;     ///< The title for users: `简体中文 GBK (ANSI_936)`.

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

    QByteArray m_charset; // The name for the system's converter.
    Controls m_controls = Controls::Caret;
    bool m_isNewFile = false;
};

/// Collects evidence from the texts of a file about the encoding they are in.
class TextEvidence
{
public:
    /// `text` may be a single value or a whole text file.
    void add(std::string_view text);

    bool isAscii() const { return m_isWhole && m_pairs == 0 && m_longer == 0; }
    /// Whether everything is UTF-8 and not just ASCII. Two-byte sequences prove little when the
    /// declared code page is itself a double-byte one.
    bool speaksForUtf8(const TextCodec& named) const;

private:
    bool m_isWhole = true; ///< Everything so far is valid UTF-8.
    qint64 m_pairs = 0;    ///< The number of two-byte sequences.
    qint64 m_longer = 0;   ///< The number of longer sequences.
};

} // namespace drawing
