#pragma once

#include <QByteArray>
#include <QString>

#include <iconv.h>

#include <string_view>

namespace drawing {

/// The system's converter between a code page and Unicode, one for each thread: it has a state.
class CharsetConverter
{
public:
    /// Null when the system does not know the code page.
    static CharsetConverter* toUnicode(const QByteArray& charset);
    static CharsetConverter* fromUnicode(const QByteArray& charset);

    ~CharsetConverter();
    CharsetConverter(const CharsetConverter&) = delete;
    CharsetConverter& operator=(const CharsetConverter&) = delete;

    /// The longest beginning of `bytes` that means something, as text; what does not is left in
    /// `bytes`.
    QString convert(std::string_view& bytes);
    /// The text of bytes all of which mean something; null when some do not.
    QString converted(std::string_view bytes);
    /// The bytes of a text; null when the code page lacks some of it.
    QByteArray encoded(const QString& text);

private:
    explicit CharsetConverter(iconv_t handle) : m_handle(handle) {}
    static CharsetConverter* known(const QByteArray& from, const QByteArray& to);

    iconv_t m_handle;
};

} // namespace drawing
