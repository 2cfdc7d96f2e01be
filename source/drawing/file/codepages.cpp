#include "codepages.h"

#include "charsetconverter.h"
#include "drawingtexts.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <string>

namespace drawing {

namespace {

/// A name that does not end in the number of a code page, reduced to lower-case letters and digits.
struct PlainName
{
    std::string_view name;
    const char* charset;
};

constexpr PlainName kPlainNames[] = {
    {"big5", "CP950"},
    {"big5hkscs", "BIG5-HKSCS"},
    {"gb18030", "GB18030"},
    {"gb2312", "CP936"},
    {"gbk", "CP936"},
    {"johab", "JOHAB"},
    {"kcs5601", "CP949"},
    {"koi8r", "KOI8-R"},
    {"koi8u", "KOI8-U"},
    {"korean", "CP949"},
    {"ksc5601", "CP949"},
    {"latin1", "CP1252"},
    {"maccentraleurope", "MAC-CENTRALEUROPE"},
    {"maccyrillic", "MAC-CYRILLIC"},
    {"macintosh", "MACINTOSH"},
    {"macroman", "MACINTOSH"},
    {"macukrainian", "MACUKRAINIAN"},
    {"shiftjis", "CP932"},
    {"sjis", "CP932"},
    {"tis620", "CP874"},
    {"utf8", "UTF-8"},
};

/// Families of names that end in a number, and the prefix that the converter uses for them.
constexpr std::pair<std::string_view, const char*> kFamilies[] = {
    {"ansi", "CP"},
    {"dos", "CP"},
    {"cp", "CP"},
    {"windows", "CP"},
    {"ibm", "CP"},
    {"oem", "CP"},
    {"iso8859", "ISO-8859-"},
    {"", "CP"},
};

std::string plainName(std::string_view name)
{
    std::string plain;
    for (const char c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)))
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return plain;
}

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

QByteArray candidate(const std::string& plain)
{
    for (const auto& [name, charset] : kPlainNames) {
        if (plain == name)
            return charset;
    }
    for (const auto& [prefix, charset] : kFamilies) {
        if (plain.compare(0, prefix.size(), prefix) == 0 &&
            isDigits(std::string_view(plain).substr(prefix.size())))
            return charset + QByteArray::fromStdString(plain.substr(prefix.size()));
    }
    return {};
}

/// Whether the code page contains ASCII. Group codes and names of records are ASCII, so mainframe
/// code pages are not usable for drawings.
bool holdsAscii(const QByteArray& charset)
{
    constexpr std::string_view kLetters = "0AZaz_$";
    CharsetConverter* const converter = CharsetConverter::toUnicode(charset);
    return converter && converter->converted(kLetters) ==
                            QString::fromLatin1(kLetters.data(), static_cast<int>(kLetters.size()));
}

} // namespace

const std::vector<CodePage>& codePages()
{
    static const std::vector<CodePage> pages = {
        {"UTF-8", "UTF-8", "Unicode"},
        {"ANSI_936", "CP936", QT_TRANSLATE_NOOP("drawing", "简体中文 GBK")},
        {"GB18030", "GB18030", QT_TRANSLATE_NOOP("drawing", "中文")},
        {"ANSI_950", "CP950", QT_TRANSLATE_NOOP("drawing", "繁体中文 Big5")},
        {"ANSI_932", "CP932", QT_TRANSLATE_NOOP("drawing", "日文")},
        {"ANSI_949", "CP949", QT_TRANSLATE_NOOP("drawing", "韩文")},
        {"JOHAB", "JOHAB", QT_TRANSLATE_NOOP("drawing", "韩文组合码")},
        {"ANSI_1252", "CP1252", QT_TRANSLATE_NOOP("drawing", "西欧")},
        {"ANSI_1250", "CP1250", QT_TRANSLATE_NOOP("drawing", "中欧")},
        {"ANSI_1251", "CP1251", QT_TRANSLATE_NOOP("drawing", "西里尔文")},
        {"ANSI_1253", "CP1253", QT_TRANSLATE_NOOP("drawing", "希腊文")},
        {"ANSI_1254", "CP1254", QT_TRANSLATE_NOOP("drawing", "土耳其文")},
        {"ANSI_1255", "CP1255", QT_TRANSLATE_NOOP("drawing", "希伯来文")},
        {"ANSI_1256", "CP1256", QT_TRANSLATE_NOOP("drawing", "阿拉伯文")},
        {"ANSI_1257", "CP1257", QT_TRANSLATE_NOOP("drawing", "波罗的海")},
        {"ANSI_1258", "CP1258", QT_TRANSLATE_NOOP("drawing", "越南文")},
        {"ANSI_874", "CP874", QT_TRANSLATE_NOOP("drawing", "泰文")},
        {"DOS437", "CP437", QT_TRANSLATE_NOOP("drawing", "美国 DOS")},
        {"DOS850", "CP850", QT_TRANSLATE_NOOP("drawing", "西欧 DOS")},
        {"DOS852", "CP852", QT_TRANSLATE_NOOP("drawing", "中欧 DOS")},
        {"DOS866", "CP866", QT_TRANSLATE_NOOP("drawing", "俄文 DOS")},
        {"KOI8-R", "KOI8-R", QT_TRANSLATE_NOOP("drawing", "俄文")},
        {"MACINTOSH", "MACINTOSH", QT_TRANSLATE_NOOP("drawing", "西欧 Macintosh")},
        {"ISO8859-1", "ISO-8859-1", QT_TRANSLATE_NOOP("drawing", "西欧 ISO")},
        {"ISO8859-2", "ISO-8859-2", QT_TRANSLATE_NOOP("drawing", "中欧 ISO")},
        {"ISO8859-5", "ISO-8859-5", QT_TRANSLATE_NOOP("drawing", "西里尔文 ISO")},
    };
    return pages;
}

QByteArray charsetOfCodePage(std::string_view name)
{
    const std::string plain = plainName(name);
    if (plain == "1361" || (plain.size() > 4 && plain.substr(plain.size() - 4) == "1361"))
        return "JOHAB";
    const QByteArray charset = candidate(plain);
    return !charset.isEmpty() && holdsAscii(charset) ? charset : QByteArray();
}

bool isNoCodePage(std::string_view name)
{
    constexpr std::array<std::string_view, 4> kNone = {"", "ascii", "usascii", "undefined"};
    return std::find(kNone.begin(), kNone.end(), plainName(name)) != kNone.end();
}

QString codePageTitle(const QByteArray& charset)
{
    for (const CodePage& page : codePages()) {
        if (charset == page.charset)
            return QStringLiteral("%1 (%2)").arg(Texts::tr(page.title), QLatin1String(page.name));
    }
    return QString::fromLatin1(charset);
}

} // namespace drawing
