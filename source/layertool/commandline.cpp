#include "commandline.h"

#include "engine/run.h"
#include "texts.h"

// Only this file includes this large library. It is used for nothing but splitting the command line
// into its parts.
#include <CLI/CLI.hpp>

#include <QRegularExpression>

#include <algorithm>

namespace layertool {

namespace {

EarlyExit misuse(const QString& text)
{
    return {kMisuse, Texts::tr("layertool: %1\n用 layertool help 查看用法。\n").arg(text)};
}

EarlyExit badValue(const QString& option)
{
    return misuse(Texts::tr("选项缺少它的值，或给了不该有的值：%1。").arg(option));
}

/// The name that is most similar to an unknown word; empty when none is similar.
QString nearest(const QString& word)
{
    const auto distance = [&word](const QString& name) {
        std::vector<int> row(static_cast<size_t>(name.size()) + 1);
        for (size_t j = 0; j < row.size(); ++j)
            row[j] = static_cast<int>(j);
        for (int i = 0; i < word.size(); ++i) {
            int diagonal = row[0]++;
            for (int j = 0; j < name.size(); ++j) {
                auto& cell = row[static_cast<size_t>(j) + 1];
                const int changed = diagonal + (word.at(i) == name.at(j) ? 0 : 1);
                diagonal = cell;
                cell = std::min({changed, cell + 1, row[static_cast<size_t>(j)] + 1});
            }
        }
        return row.back();
    };
    QString best;
    int least = 3;
    for (const VerbRow& row : verbs()) {
        const QString name = QLatin1String(row.name);
        if (distance(name) < least) {
            least = distance(name);
            best = name;
        }
    }
    return best;
}

/// A verb in terms of the library, with the places where its values are stored.
class VerbLine
{
public:
    explicit VerbLine(const VerbRow& row);

    /// Refuses what the library refuses.
    tl::expected<void, EarlyExit> parse(const QStringList& words);
    tl::expected<Arguments, EarlyExit> arguments() const;

private:
    QString firstUnknown(const QStringList& words) const;
    tl::expected<QStringList, EarlyExit> valuesOf(size_t option) const;

    const VerbRow& m_row;
    CLI::App m_app;
    std::vector<OptionRow> m_options;
    std::vector<CLI::Option*> m_known;
    std::vector<std::string> m_paths;
};

VerbLine::VerbLine(const VerbRow& row) : m_row(row), m_options(optionsOf(row))
{
    m_app.set_help_flag();
    for (const OptionRow& option : m_options) {
        const std::string name = std::string("--") + option.name;
        if (option.kind == OptionKind::Flag)
            m_known.push_back(m_app.add_flag(name));
        else // One value each; otherwise the option would take the drawings after it.
            m_known.push_back(m_app.add_option(name)
                                  ->expected(1)
                                  ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
                                  ->allow_extra_args(false)
                                  ->type_size(1));
    }
    m_app.add_option("paths", m_paths);
}

QString checkValue(const OptionRow& row, const QString& value)
{
    const QString option = QStringLiteral("--") + QLatin1String(row.name);
    if (row.kind == OptionKind::Number || row.kind == OptionKind::Count) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber || number < (row.kind == OptionKind::Count ? 1 : 0))
            return Texts::tr("%1 应为正整数，不是“%2”。").arg(option, value);
    }
    if (row.kind == OptionKind::Choice && !wordsOf(row.choices).contains(value))
        return Texts::tr("%1 应为 %2 之一，不是“%3”。")
            .arg(option, wordsOf(row.choices).join(Texts::tr("、")), value);
    return {};
}

tl::expected<QStringList, EarlyExit> VerbLine::valuesOf(size_t option) const
{
    const OptionRow& row = m_options[option];
    QStringList values;
    for (const std::string& value : m_known[option]->results())
        values += QString::fromLocal8Bit(value.c_str());
    if (row.kind == OptionKind::Flag) {
        values.removeDuplicates();
        if (values == QStringList(QStringLiteral("true")))
            return values;
        return tl::make_unexpected(badValue(QStringLiteral("--") + QLatin1String(row.name)));
    }
    if (!row.several && values.size() > 1)
        return tl::make_unexpected(
            misuse(Texts::tr("--%1 给出了不止一次。").arg(QLatin1String(row.name))));
    for (const QString& value : values) {
        if (const QString refusal = checkValue(row, value); !refusal.isEmpty())
            return tl::make_unexpected(misuse(refusal));
    }
    return values;
}

tl::expected<Arguments, EarlyExit> VerbLine::arguments() const
{
    Arguments arguments;
    arguments.verb = QLatin1String(m_row.name);
    for (size_t i = 0; i < m_options.size(); ++i) {
        if (m_known[i]->count() == 0)
            continue;
        const auto values = valuesOf(i);
        if (!values)
            return tl::make_unexpected(values.error());
        arguments.set(QLatin1String(m_options[i].name), *values);
    }
    for (const std::string& path : m_paths)
        arguments.paths += QString::fromLocal8Bit(path.c_str());
    const QStringList actions = wordsOf(m_row.actions);
    if (!actions.isEmpty()) {
        if (!actions.contains(arguments.paths.value(0)))
            return tl::make_unexpected(
                misuse(Texts::tr("%1 之后应为 %2 之一。")
                           .arg(arguments.verb, actions.join(Texts::tr("、")))));
        arguments.action = arguments.paths.takeFirst();
    }
    const bool takesMore = !m_row.runAlone || *m_row.operands;
    if (!takesMore && !arguments.paths.isEmpty())
        return tl::make_unexpected(
            misuse(Texts::tr("“%1”是多余的。").arg(arguments.paths.front())));
    return arguments;
}

/// Finds the unknown word, which the library does not tell.
QString VerbLine::firstUnknown(const QStringList& words) const
{
    for (const QString& word : words) {
        const QString name = word.mid(2).section(QLatin1Char('='), 0, 0);
        const bool isKnown = std::any_of(m_options.begin(), m_options.end(),
            [&name](const OptionRow& option) { return name == QLatin1String(option.name); });
        if (word.startsWith(QLatin1Char('-')) && word != QLatin1String("-") && !isKnown)
            return word;
    }
    return {};
}

tl::expected<void, EarlyExit> VerbLine::parse(const QStringList& words)
{
    std::vector<std::string> reversed; // The library expects the words in reverse order.
    for (auto word = words.rbegin(); word != words.rend(); ++word)
        reversed.push_back(word->toLocal8Bit().toStdString());
    try {
        m_app.parse(reversed);
        return {};
    } catch (const CLI::ExtrasError&) {
        return tl::make_unexpected(
            misuse(Texts::tr("%1 没有名为“%2”的选项。")
                       .arg(QLatin1String(m_row.name), firstUnknown(words))));
    } catch (const CLI::ParseError& error) {
        // The message is in English, but it names the option.
        static const QRegularExpression option(QStringLiteral("--[a-z-]+"));
        return tl::make_unexpected(
            badValue(option.match(QString::fromLocal8Bit(error.what())).captured()));
    }
}

} // namespace

std::vector<OptionRow> optionsOf(const VerbRow& verb)
{
    std::vector<OptionRow> all(verb.options.begin(), verb.options.end());
    if (verb.edits)
        all = joined(OptionRows::of(all), editingOptions());
    if (!verb.runAlone)
        all = joined(OptionRows::of(all), drawingOptions());
    if (*verb.formats)
        all.push_back(formatOption(verb.formats));
    all.push_back(languageOption());
    return all;
}

tl::expected<Arguments, EarlyExit> readCommandLine(const QStringList& arguments)
{
    const QString word = arguments.value(1);
    const VerbRow* const row = findVerb(word);
    if (!row) {
        const QString near = nearest(word);
        return tl::make_unexpected(
            misuse(near.isEmpty() ? Texts::tr("没有名为“%1”的命令。").arg(word)
                                  : Texts::tr("没有名为“%1”的命令；是不是 %2？").arg(word, near)));
    }
    VerbLine line(*row);
    if (const auto parsed = line.parse(arguments.mid(2)); !parsed)
        return tl::make_unexpected(parsed.error());
    return line.arguments();
}

} // namespace layertool
