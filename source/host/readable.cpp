#include "readable.h"

namespace host {

namespace {
constexpr int kLongestText = 1500;
constexpr int kLongestWord = 60;
constexpr ushort kBreakAllowed = 0x200B;
} // namespace

QString readable(const QString& text)
{
    QString shown;
    int word = 0;
    for (const QChar c : text.left(kLongestText)) {
        if (c == QLatin1Char('\r'))
            continue;
        word = c.isSpace() ? 0 : word + 1;
        if (word > kLongestWord && !c.isLowSurrogate()) {
            shown += QChar(kBreakAllowed);
            word = 1;
        }
        shown += c;
    }
    if (text.size() > kLongestText)
        shown += QChar(0x2026);
    return shown;
}

} // namespace host
