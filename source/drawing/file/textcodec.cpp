#include "textcodec.h"

#include "tagreader.h"

#include <QTextCodec>

#include <algorithm>

namespace drawing {

namespace {

struct CodePage
{
    std::string_view name; // In lower case, as far as it tells the code page.
    const char* codec;
};

constexpr CodePage kCodePages[] = {
    {"ansi_874", "windows-874"},
    {"ansi_932", "windows-31j"},
    {"ansi_936", "GBK"},
    {"ansi_949", "windows-949"},
    {"ansi_950", "Big5"},
    {"ansi_1250", "windows-1250"},
    {"ansi_1251", "windows-1251"},
    {"ansi_1252", "windows-1252"},
    {"ansi_1253", "windows-1253"},
    {"ansi_1254", "windows-1254"},
    {"ansi_1255", "windows-1255"},
    {"ansi_1256", "windows-1256"},
    {"ansi_1257", "windows-1257"},
    {"ansi_1258", "windows-1258"},
    {"ansi_1361", "johab"},
    {"big5", "Big5"},
    {"gb2312", "GBK"},
    {"gbk", "GBK"},
    {"dos437", "IBM437"},
    {"dos850", "IBM850"},
    {"dos852", "IBM852"},
    {"dos866", "IBM866"},
    {"dos932", "windows-31j"},
    {"ksc5601", "windows-949"},
    {"iso8859-1", "ISO-8859-1"},
    {"ascii", "windows-1252"},
};

constexpr int kEscapeLength = 7; // \U+XXXX

QTextCodec* codecFor(std::string_view codePage)
{
    const std::string_view name = trimmedView(codePage);
    const QByteArray wanted = QByteArray(name.data(), static_cast<int>(name.size())).toLower();
    const auto* known =
        std::find_if(std::begin(kCodePages), std::end(kCodePages), [&](const CodePage& page) {
            return wanted ==
                   QByteArray::fromRawData(page.name.data(), static_cast<int>(page.name.size()));
        });
    QTextCodec* codec =
        known != std::end(kCodePages) ? QTextCodec::codecForName(known->codec) : nullptr;
    return codec ? codec : QTextCodec::codecForName("windows-1252");
}

bool isAscii(std::string_view value)
{
    return std::all_of(value.begin(), value.end(), [](char c) { return (c & 0x80) == 0; });
}

QString withEscapesResolved(const QString& text)
{
    QString resolved;
    int from = 0;
    for (;;) {
        const int at = text.indexOf(QLatin1String("\\U+"), from, Qt::CaseInsensitive);
        bool isHex = false;
        const ushort unit = at < 0 ? ushort(0) : text.midRef(at + 3, 4).toUShort(&isHex, 16);
        if (at < 0 || !isHex || at + kEscapeLength > text.size()) {
            const int end = at < 0 ? text.size() : at + 3;
            resolved += text.midRef(from, end - from);
            if (at < 0)
                return resolved;
            from = end;
            continue;
        }
        resolved += text.midRef(from, at - from);
        resolved += QChar(unit);
        from = at + kEscapeLength;
    }
}

/// Half a character at the end would be left out without a word: the line end behind it makes it
/// one that cannot be read.
QString decodePage(const QTextCodec& codec, QByteArray bytes)
{
    QString text = codec.toUnicode(bytes.append('\n'));
    text.chop(1);
    return text;
}

QByteArray escaped(ushort unit)
{
    return "\\U+" + QByteArray::number(unit, 16).toUpper().rightJustified(4, '0');
}

} // namespace

TextCodec::TextCodec() : m_codec(codecFor("ansi_1252")) {}

TextCodec::TextCodec(std::string_view version, std::string_view codePage)
    : m_codec(trimmedView(version) >= "AC1021" ? nullptr : codecFor(codePage))
{
}

QString TextCodec::decode(std::string_view value) const
{
    const int size = static_cast<int>(value.size());
    QString text;
    if (isAscii(value))
        text = QString::fromLatin1(value.data(), size);
    else if (!m_codec)
        text = QString::fromUtf8(value.data(), size);
    else
        text = decodePage(*m_codec, {value.data(), size});
    // Only now: in some code pages a backslash is also the second byte of a character.
    return text.contains(QLatin1Char('\\')) ? withEscapesResolved(text) : text;
}

QByteArray TextCodec::encode(const QString& text) const
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (int at = 0; at < text.size();) {
        const QChar c = text.at(at);
        const bool pair =
            c.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        const int units = pair ? 2 : 1;
        if (c.unicode() >= 0x20 && c.unicode() < 0x7f)
            bytes += c.toLatin1();
        else if (c.unicode() < 0x80 || !encodePoint(text, at, units, bytes))
            for (int i = 0; i < units; ++i)
                bytes += escaped(text.at(at + i).unicode());
        at += units;
    }
    return bytes;
}

/// Appends a character, unless it does not come back the same from the code page.
bool TextCodec::encodePoint(const QString& text, int at, int units, QByteArray& bytes) const
{
    const QChar c = text.at(at);
    if (units == 1 && c.isSurrogate())
        return false;
    const QString point = text.mid(at, units);
    if (!m_codec) {
        bytes += point.toUtf8();
        return true;
    }
    // Private-use characters have no fixed place in the double-byte code pages: readers disagree.
    if (c.unicode() >= 0xe000 && c.unicode() <= 0xf8ff)
        return false;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray encoded = m_codec->fromUnicode(point.constData(), units, &state);
    if (encoded.isEmpty() || m_codec->toUnicode(encoded) != point)
        return false;
    bytes += encoded;
    return true;
}

bool TextCodec::canDecode(std::string_view bytes) const
{
    constexpr size_t kPiece = 1 << 20;
    const QTextCodec* const codec = m_codec ? m_codec : QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state;
    for (size_t at = 0; at < bytes.size(); at += kPiece) {
        const std::string_view piece = bytes.substr(at, kPiece);
        const QString text = codec->toUnicode(piece.data(), static_cast<int>(piece.size()), &state);
        // Not every codec counts what it replaces.
        if (state.invalidChars != 0 || (m_codec && text.contains(QChar::ReplacementCharacter)))
            return false;
    }
    return true;
}

bool TextCodec::isDoubleByte() const
{
    constexpr ushort kFirstIdeograph = 0x4e00;
    return m_codec && m_codec->canEncode(QChar(kFirstIdeograph));
}

QString TextCodec::name() const
{
    return m_codec ? QString::fromLatin1(m_codec->name()) : QStringLiteral("UTF-8");
}

} // namespace drawing
