#pragma once

#include <QByteArray>
#include <QString>

#include <iconv.h>

#include <string_view>

namespace drawing {

/// The system's converter between a code page and Unicode. Each thread has its own because a
/// converter has a state.
class CharsetConverter
{
public:
    /// Returns null when the system does not know the code page.
    static CharsetConverter* toUnicode(const QByteArray& charset);
    static CharsetConverter* fromUnicode(const QByteArray& charset);

    ~CharsetConverter();
    CharsetConverter(const CharsetConverter&) = delete;
    CharsetConverter& operator=(const CharsetConverter&) = delete;

    /// Converts the longest valid beginning of `bytes` to text and leaves the rest in `bytes`.
    QString convert(std::string_view& bytes);
    /// Converts `bytes` to text; returns null unless all of them are valid.
    QString converted(std::string_view bytes);
    /// Converts text to bytes; returns null when the code page lacks one of the characters.
    QByteArray encoded(const QString& text);

private:
    explicit CharsetConverter(iconv_t handle) : m_handle(handle) {}
    static CharsetConverter* known(const QByteArray& from, const QByteArray& to);

    iconv_t m_handle;
};

} // namespace drawing
