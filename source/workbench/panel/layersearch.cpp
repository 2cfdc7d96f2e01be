#include "layersearch.h"

#include "benchtexts.h"
#include "wildcardpattern.h"

#include <QRegularExpression>
#include <QStringMatcher>

#include <algorithm>
#include <memory>

namespace {

/// The wildcards that cannot occur in a layer name, and the beginning of sets.
constexpr char kWildcards[] = "*?[";

LayerTest inNameOrDescription(std::function<bool(const QString& text)> isFound)
{
    return [isFound = std::move(isFound)](const LayerRow& row) {
        const drawing::LayerProperties& p = row.properties();
        return isFound(p.name) || (!p.description.isEmpty() && isFound(p.description));
    };
}

constexpr QLatin1Char kSlash('/');

/// The text between the slashes. The second slash may be missing while the user types.
QString expressionIn(const QString& typed)
{
    return typed.mid(1, typed.size() - (typed.endsWith(kSlash) ? 2 : 1));
}

bool isPattern(const QString& typed)
{
    return std::any_of(std::begin(kWildcards), std::end(kWildcards) - 1,
        [&typed](char wildcard) { return typed.contains(QLatin1Char(wildcard)); });
}

} // namespace

std::function<bool(const QString& text)> wildcardTest(const QString& pattern)
{
    const auto compiled =
        std::make_shared<const wildcard::WildcardPattern>(pattern.toStdWString(), true);
    return [compiled, wide = std::wstring()](const QString& text) mutable {
        wide.resize(static_cast<size_t>(text.size()));
        wide.resize(static_cast<size_t>(text.toWCharArray(wide.data())));
        return compiled->matches(wide);
    };
}

LayerSearch::LayerSearch(const QString& typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty() || text == kSlash)
        return;
    if (text.startsWith(kSlash)) { // No layer name begins with a slash.
        const QRegularExpression expression(
            expressionIn(text), QRegularExpression::CaseInsensitiveOption |
                                    QRegularExpression::UseUnicodePropertiesOption);
        if (!expression.isValid()) {
            m_fault = Texts::tr("正则表达式有误：%1（第 %2 个字符）")
                          .arg(expression.errorString())
                          .arg(expression.patternErrorOffset() + 1);
            return;
        }
        expression.optimize();
        m_test = inNameOrDescription(
            [expression](const QString& in) { return expression.match(in).hasMatch(); });
    } else if (isPattern(text)) {
        m_test = [fits = wildcardTest(text)](
                     const LayerRow& row) { return fits(row.properties().name); };
    } else {
        const QStringMatcher matcher(text, Qt::CaseInsensitive);
        m_test =
            inNameOrDescription([matcher](const QString& in) { return matcher.indexIn(in) >= 0; });
    }
}
