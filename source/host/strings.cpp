#include "platformextras.h"
#include "vnstrings.h"

namespace vnsi {

namespace {
constexpr uint kLastCharacter = 0x10FFFF;
}

// Qt's own conversions replace single surrogates. Names that contain them must survive a round
// trip, so the two loops copy them.
QString vnutOdStringToQString(const OdString& text)
{
    QString out;
    out.reserve(text.getLength());
    for (const wchar_t c : viewOf(text)) {
        const auto code = static_cast<char32_t>(c);
        if (code > kLastCharacter) {
            out += QChar(QChar::ReplacementCharacter);
        } else if (QChar::requiresSurrogates(code)) {
            out += QChar(QChar::highSurrogate(code));
            out += QChar(QChar::lowSurrogate(code));
        } else {
            out += QChar(static_cast<ushort>(code));
        }
    }
    return out;
}

OdString vnutQStringToOdString(const QString& text)
{
    std::wstring out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            out += static_cast<wchar_t>(QChar::surrogateToUcs4(text[i], text[i + 1]));
            ++i;
        } else {
            out += static_cast<wchar_t>(text[i].unicode());
        }
    }
    return OdString(out.data(), static_cast<int>(out.size()));
}

} // namespace vnsi
