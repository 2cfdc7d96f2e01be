#include "symbolname.h"

#include "drawingtexts.h"

#include <algorithm>

namespace drawing {

namespace {

bool isOldNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c.isSurrogate() || QStringLiteral("$-_").contains(c);
}

bool isTooLongForOldFormats(const QString& name)
{
    return name.toUcs4().size() > kMostInOldFormats;
}

} // namespace

bool isOldName(const QString& name)
{
    return !isTooLongForOldFormats(name) &&
           std::all_of(name.begin(), name.end(), isOldNameCharacter);
}

QString nameRefusal(const QString& name, const QString& what, const FormatLimits& limits)
{
    using vnsi::NameFault;
    constexpr int kShown = 20;
    const vnsi::NameFaults faults = vnsi::nameFaults(name);
    if (faults.testFlag(NameFault::Empty))
        return Texts::tr("%1不能为空。").arg(what);
    if (faults.testFlag(NameFault::TooLong))
        return Texts::tr("%1“%2…”超过 %3 个字符。")
            .arg(what, name.left(kShown))
            .arg(vnsi::kMostNameCharacters);
    if (faults.testFlag(NameFault::ForbiddenCharacter) ||
        faults.testFlag(NameFault::ControlCharacter))
        return Texts::tr("%1“%2”含有不能使用的字符：\\ < > / \" : ; ? * | , = ` 或控制字符。")
            .arg(what, name);
    if (limits.longNames || isOldName(name))
        return {};
    if (isTooLongForOldFormats(name))
        return Texts::tr("%1“%2…”超过 %3 个字符，此图形的 DXF 版本不能保存。")
            .arg(what, name.left(kShown))
            .arg(kMostInOldFormats);
    return Texts::tr("%1“%2”：此图形的 DXF 版本只能使用字母、数字和 $ - _。").arg(what, name);
}

} // namespace drawing
