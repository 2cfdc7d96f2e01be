#include "layerchoice.h"

#include "drawing.h"
#include "namerule.h"
#include "texts.h"
#include "wildcardpattern.h"

#include <algorithm>

namespace layertool {

namespace {

constexpr OptionRow kOptions[] = {
    {"layer", OptionKind::Text, QT_TRANSLATE_NOOP("layertool", "图层名，不分大小写；可多次给出。"),
        "", true},
    {"pattern", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "图层名的通配模式：* 任意一段，? 任意一个字符，# 数字，@ "
                                       "字母，[...] 其中之一，开头的 ~ "
                                       "表示不匹配，逗号隔开几个模式；可多次给出。"),
        "", true},
    {"regex", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "与整个图层名相配的正则表达式，不分大小写；可多次给出。"),
        "", true},
};

} // namespace

Expected<QRegularExpression> readRegex(const QString& text)
{
    QRegularExpression regex(QRegularExpression::anchoredPattern(text),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    if (regex.isValid())
        return regex;
    return tl::make_unexpected(
        Error{Texts::tr("“%1”不是正则表达式：%2。").arg(text, regex.errorString())});
}

OptionRows LayerChoice::options()
{
    return OptionRows::of(kOptions);
}

Expected<void> LayerChoice::read(const Arguments& arguments)
{
    m_names = arguments.values("layer");
    for (const QString& pattern : arguments.values("pattern"))
        m_patterns.push_back(
            std::make_shared<wildcard::WildcardPattern>(pattern.toStdWString(), true));
    for (const QString& text : arguments.values("regex")) {
        const auto regex = readRegex(text);
        if (!regex)
            return tl::make_unexpected(regex.error());
        m_regexes += *regex;
    }
    return {};
}

bool LayerChoice::names(const QString& name) const
{
    return std::any_of(m_names.begin(), m_names.end(),
        [&name](const QString& given) { return vnsi::isSameName(given, name); });
}

bool LayerChoice::matches(const QString& name) const
{
    const std::wstring wide = name.toStdWString();
    return names(name) ||
           std::any_of(m_patterns.begin(), m_patterns.end(),
               [&wide](const auto& pattern) { return pattern->matches(wide); }) ||
           std::any_of(m_regexes.begin(), m_regexes.end(),
               [&name](const QRegularExpression& regex) { return regex.match(name).hasMatch(); });
}

std::vector<drawing::LayerId> LayerChoice::in(const drawing::Drawing& drawing) const
{
    std::vector<drawing::LayerId> chosen;
    for (const drawing::Layer& layer : drawing.layers()) {
        if (matches(layer.properties.name))
            chosen.push_back(layer.id);
    }
    return chosen;
}

QStringList LayerChoice::missingIn(const drawing::Drawing& drawing) const
{
    QStringList missing;
    for (const QString& name : m_names) {
        if (!drawing.findLayer(name))
            missing += name;
    }
    return missing;
}

} // namespace layertool
