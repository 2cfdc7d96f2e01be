#include "textcodec.h"

#include "charsetconverter.h"
#include "codepages.h"
#include "tag.h"

#include <algorithm>
#include <cstring>

namespace drawing {

namespace {

constexpr char kUtf8[] = "UTF-8";
constexpr char kWestern[] = "CP1252";
constexpr QChar kUnreadable(QChar::ReplacementCharacter);
constexpr int kUnicodeEscape = 7;   // The length of \U+XXXX.
constexpr int kMultibyteEscape = 8; // The length of \M+nXXXX.
constexpr int kAscii = 0x80;

/// The code pages in the order of their numbers in `\M+nXXXX`, which start at 1.
constexpr const char* kEscapedPages[] = {"ANSI_932", "ANSI_950", "ANSI_949", "JOHAB", "ANSI_936"};

bool isAscii(std::string_view value)
{
    return std::all_of(value.begin(), value.end(), [](char c) { return (c & 0x80) == 0; });
}

int hexDigit(QChar c)
{
    const ushort unit = c.unicode();
    if (unit >= '0' && unit <= '9')
        return unit - '0';
    const ushort letter = unit | 0x20;
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

/// The value of `count` hexadecimal digits at `at`; -1 when they are not all there.
int hexAt(const QString& text, int at, int count)
{
    if (at + count > text.size())
        return -1;
    int number = 0;
    for (int i = at; i < at + count; ++i) {
        const int digit = hexDigit(text.at(i));
        if (digit < 0)
            return -1;
        number = number * 16 + digit;
    }
    return number;
}

QString hex(uint number, int digits)
{
    return QString::number(number, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

QString unreadable(char byte)
{
    return kUnreadable + hex(static_cast<uchar>(byte), 2);
}

/// The value of the unreadable byte that is represented at `at`; -1 when there is none.
int unreadableAt(const QString& text, int at)
{
    const int byte = text.at(at) == kUnreadable ? hexAt(text, at + 1, 2) : -1;
    return byte >= kAscii ? byte : -1;
}

QByteArray escaped(ushort unit)
{
    return "\\U+" + hex(unit, 4).toLatin1();
}

/// The character that `\M+nXXXX` at `at` represents; null when it is not valid.
QString multibyteAt(const QString& text, int at)
{
    const int page = at + 3 < text.size() ? text.at(at + 3).unicode() - '1' : -1;
    const int number = hexAt(text, at + 4, 4);
    if (page < 0 || page >= static_cast<int>(std::size(kEscapedPages)) || number < 0)
        return {};
    const char bytes[] = {static_cast<char>(number >> 8), static_cast<char>(number)};
    const std::string_view all(bytes, sizeof bytes);
    CharsetConverter* const converter =
        CharsetConverter::toUnicode(charsetOfCodePage(kEscapedPages[page]));
    return converter ? converter->converted(bytes[0] == 0 ? all.substr(1) : all) : QString();
}

/// The character that `\U+XXXX` at `at` represents. Null when it is not valid or when the character
/// could be confused with an unreadable byte.
QString unicodeAt(const QString& text, int at)
{
    const int unit = hexAt(text, at + 3, 4);
    if (unit < 0 || (unit == kUnreadable && hexAt(text, at + kUnicodeEscape, 2) >= kAscii))
        return {};
    return QChar(static_cast<ushort>(unit));
}

QString withEscapesResolved(const QString& text)
{
    QString resolved;
    int from = 0;
    for (int at = text.indexOf(QLatin1Char('\\')); at >= 0;
         at = text.indexOf(QLatin1Char('\\'), at + 1)) {
        if (at + 3 > text.size() || text.at(at + 2) != QLatin1Char('+'))
            continue;
        const ushort kind = text.at(at + 1).unicode() | 0x20;
        QString character;
        if (kind == 'u')
            character = unicodeAt(text, at);
        else if (kind == 'm')
            character = multibyteAt(text, at);
        if (character.isNull())
            continue;
        resolved += text.midRef(from, at - from) + character;
        from = at + (kind == 'u' ? kUnicodeEscape : kMultibyteEscape);
        at = from - 1;
    }
    return from == 0 ? text : resolved + text.midRef(from);
}

/// Resolves carets: a caret and a letter are a control character, a caret and a blank are a caret.
QString withCaretsResolved(const QString& text)
{
    QString resolved;
    resolved.reserve(text.size());
    for (int at = 0; at < text.size(); ++at) {
        const bool isCaret = text.at(at) == QLatin1Char('^') && at + 1 < text.size();
        const ushort next = isCaret ? text.at(at + 1).unicode() : ushort(0);
        if (next == ' ' || (next >= '@' && next < '^') || next == '_') {
            resolved += next == ' ' ? QLatin1Char('^') : QChar(next - '@');
            ++at;
        } else {
            resolved += text.at(at);
        }
    }
    return resolved;
}

/// Whether a backslash in a text would be read as the beginning of an escape sequence.
bool beginsEscape(const QString& text, int at)
{
    return at + 2 < text.size() && text.at(at + 2) == QLatin1Char('+') &&
           (!unicodeAt(text, at).isNull() || !multibyteAt(text, at).isNull());
}

} // namespace

TextCodec::TextCodec() : m_charset(kWestern) {}

TextCodec::TextCodec(std::string_view version, std::string_view codePage)
    : m_charset(trimmedView(version) >= "AC1021" ? QByteArray(kUtf8) : charsetOfCodePage(codePage))
{
    if (m_charset.isEmpty())
        m_charset = kWestern;
}

std::optional<TextCodec> TextCodec::ofCodePage(std::string_view name)
{
    const QByteArray charset = charsetOfCodePage(name);
    return charset.isEmpty() ? std::nullopt : std::optional(TextCodec(charset));
}

TextCodec TextCodec::utf8()
{
    return TextCodec(QByteArray(kUtf8));
}

TextCodec TextCodec::forNewFile() const
{
    TextCodec codec(*this);
    codec.m_isNewFile = true;
    return codec;
}

QString TextCodec::decode(std::string_view value) const
{
    QString text = isAscii(value)
                       ? QString::fromLatin1(value.data(), static_cast<int>(value.size()))
                       : decodePage(value);
    // This must be done after decoding, because in some code pages a caret is also the second byte
    // of a character.
    if (m_controls == Controls::Caret && text.contains(QLatin1Char('^')))
        text = withCaretsResolved(text);
    return text.contains(QLatin1Char('\\')) ? withEscapesResolved(text) : text;
}

QString TextCodec::decodePage(std::string_view bytes) const
{
    CharsetConverter* const converter = CharsetConverter::toUnicode(m_charset);
    QString text;
    while (!bytes.empty()) {
        text += withLettersMarked(converter->convert(bytes));
        if (bytes.empty())
            break;
        text += unreadable(bytes.front());
        bytes.remove_prefix(1);
    }
    // The converter maps one byte of these two code pages to another character.
    if (m_charset == "JOHAB")
        text.replace(QChar(0x20a9), QLatin1Char('\\'));
    else if (m_charset == "CP864")
        text.replace(QChar(0x066a), QLatin1Char('%'));
    return text;
}

/// Escapes a U+FFFD in the file's text that looks like an unreadable byte because two hexadecimal
/// digits follow it. Its bytes are represented like unreadable ones.
QString TextCodec::withLettersMarked(const QString& text) const
{
    if (m_isNewFile || !text.contains(kUnreadable))
        return text;
    QString marked;
    for (int at = 0; at < text.size(); ++at) {
        if (unreadableAt(text, at) < 0) {
            marked += text.at(at);
            continue;
        }
        for (const char byte : encodedPoint(QString(kUnreadable)))
            marked += unreadable(byte);
    }
    return marked;
}

QByteArray TextCodec::encode(const QString& text) const
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (int at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        const int byte = m_isNewFile ? -1 : unreadableAt(text, at);
        if (byte >= 0) {
            bytes += static_cast<char>(byte);
            at += 2;
        } else if (c.unicode() < 0x20 || c.unicode() == 0x7f) {
            bytes += encodedControl(c);
        } else if (c == QLatin1Char('^') && m_controls == Controls::Caret) {
            bytes += "^ ";
        } else if (c == QLatin1Char('\\') && beginsEscape(text, at)) {
            bytes += escaped(c.unicode());
        } else if (c.unicode() < kAscii) {
            bytes += c.toLatin1();
        } else {
            const bool isPair =
                c.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
            bytes += encodedPoint(text.mid(at, isPair ? 2 : 1));
            at += isPair ? 1 : 0;
        }
    }
    return bytes;
}

/// Encodes a control character. A value may contain anything except what would end it.
QByteArray TextCodec::encodedControl(QChar c) const
{
    const ushort unit = c.unicode();
    if (m_controls == Controls::Raw)
        return unit == 0 ? escaped(unit) : QByteArray(1, static_cast<char>(unit));
    if (unit == '^' - '@' || unit == 0x7f)
        return escaped(unit);
    return {"^" + QByteArray(1, static_cast<char>(unit + '@'))};
}

/// Encodes a character. It is escaped unless the code page can represent it without loss.
QByteArray TextCodec::encodedPoint(const QString& point) const
{
    QByteArray bytes;
    // Private-use characters are escaped, because programs disagree about their place in the
    // double-byte code pages.
    const ushort first = point.at(0).unicode();
    const bool isPrivate = first >= 0xe000 && first <= 0xf8ff && m_charset != kUtf8;
    const bool isHalf = point.size() == 1 && point.at(0).isSurrogate();
    if (!isPrivate && !isHalf)
        bytes = CharsetConverter::fromUnicode(m_charset)->encoded(point);
    if (!bytes.isEmpty() && decodePage({bytes.constData(), size_t(bytes.size())}) == point)
        return bytes;
    bytes.clear();
    for (const QChar unit : point)
        bytes += escaped(unit.unicode());
    return bytes;
}

bool TextCodec::canDecode(std::string_view bytes) const
{
    constexpr size_t kPiece = 1 << 20;
    constexpr size_t kLongestCharacter = 4;
    CharsetConverter* const converter = CharsetConverter::toUnicode(m_charset);
    while (!bytes.empty()) {
        std::string_view piece = bytes.substr(0, kPiece);
        const size_t taken = piece.size();
        converter->convert(piece);
        // The end of a piece, or of the file, may split a character.
        if (piece.size() >= kLongestCharacter)
            return false;
        if (taken == bytes.size())
            break;
        bytes.remove_prefix(taken - piece.size());
    }
    return true;
}

bool TextCodec::isDoubleByte() const
{
    constexpr ushort kFirstIdeograph = 0x4e00;
    return m_charset != kUtf8 &&
           !CharsetConverter::fromUnicode(m_charset)->encoded(QChar(kFirstIdeograph)).isEmpty();
}

QString TextCodec::title() const
{
    return codePageTitle(m_charset);
}

namespace {

/// The length of the UTF-8 sequence at the beginning of `text`; 0 when it is invalid.
size_t sequenceLength(std::string_view text)
{
    const auto byte = [text](size_t at) { return static_cast<uchar>(text[at]); };
    const uchar lead = byte(0);
    const size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || text.size() < length)
        return 0;
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80)
            return 0;
    }
    // Overlong sequences, surrogates, and values above the last character are invalid.
    const bool isBad = (lead == 0xe0 && byte(1) < 0xa0) || (lead == 0xed && byte(1) >= 0xa0) ||
                       (lead == 0xf0 && byte(1) < 0x90) || (lead == 0xf4 && byte(1) >= 0x90);
    return isBad ? 0 : length;
}

} // namespace

void TextEvidence::add(std::string_view text)
{
    constexpr quint64 kHighBits = 0x8080808080808080;
    for (size_t at = 0; m_isWhole && at < text.size();) {
        quint64 eight = 0;
        if (text.size() - at >= sizeof eight) {
            std::memcpy(&eight, text.data() + at, sizeof eight);
            if ((eight & kHighBits) == 0) {
                at += sizeof eight;
                continue;
            }
        }
        if ((text[at] & 0x80) == 0) {
            ++at;
            continue;
        }
        const size_t length = sequenceLength(text.substr(at));
        m_isWhole = length != 0;
        ++(length == 2 ? m_pairs : m_longer);
        at += length;
    }
}

bool TextEvidence::speaksForUtf8(const TextCodec& named) const
{
    return m_isWhole && !isAscii() && (!named.isDoubleByte() || m_longer > m_pairs);
}

} // namespace drawing
