#include "commandline.h"

#include "engine/console.h"
#include "engine/run.h"
#include "texts.h"

// The only file that sees this library: it is large, and all it is asked for is to take the words
// of the command line apart.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>

namespace layertool {

namespace {

EarlyExit misuse(const QString& text)
{
    return {kMisuse, Texts::tr("layertool: %1\n用 layertool help 查看用法。\n").arg(text)};
}

QStringList wordsOf(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The name most like a word that was not understood; empty when none is near.
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

/// A verb as the library knows it, with the places its values come to.
struct VerbApp
{
    const VerbRow* row = nullptr;
    CLI::App* app = nullptr;
    std::vector<OptionRow> options;
    std::vector<CLI::Option*> known;
    std::vector<std::string> paths;
};

void addVerb(CLI::App& program, VerbApp& verb)
{
    verb.app = program.add_subcommand(verb.row->name);
    verb.app->set_help_flag();
    verb.app->allow_extras(false);
    for (const OptionRow& row : verb.options) {
        const std::string name = std::string("--") + row.name;
        if (row.kind == OptionKind::Flag)
            verb.known.push_back(verb.app->add_flag(name));
        else // One value each, or the option would swallow the drawings behind it.
            verb.known.push_back(verb.app->add_option(name)
                                     ->expected(1)
                                     ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
                                     ->allow_extra_args(false)
                                     ->type_size(1));
    }
    verb.app->add_option("paths", verb.paths);
}

QString checkValue(const OptionRow& row, const QString& value)
{
    const QString option = QStringLiteral("--") + QLatin1String(row.name);
    if (row.kind == OptionKind::Number) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        const bool isJobs = qstrcmp(row.name, "jobs") == 0;
        if (!isNumber || number < (isJobs ? 1 : 0))
            return Texts::tr("%1 应为正整数，不是“%2”。").arg(option, value);
    }
    if (row.kind == OptionKind::Choice && !wordsOf(row.choices).contains(value))
        return Texts::tr("%1 应为 %2 之一，不是“%3”。")
            .arg(option, wordsOf(row.choices).join(Texts::tr("、")), value);
    return {};
}

tl::expected<Arguments, EarlyExit> argumentsOf(const VerbApp& verb)
{
    Arguments arguments;
    arguments.verb = QLatin1String(verb.row->name);
    for (size_t i = 0; i < verb.options.size(); ++i) {
        const OptionRow& row = verb.options[i];
        if (verb.known[i]->count() == 0)
            continue;
        QStringList values;
        for (const std::string& value : verb.known[i]->results())
            values += QString::fromLocal8Bit(value.c_str());
        if (row.kind == OptionKind::Flag)
            values = QStringList{QStringLiteral("true")};
        else if (!row.several && values.size() > 1)
            return tl::make_unexpected(
                misuse(Texts::tr("--%1 给出了不止一次。").arg(QLatin1String(row.name))));
        for (const QString& value : values) {
            if (const QString refusal = checkValue(row, value); !refusal.isEmpty())
                return tl::make_unexpected(misuse(refusal));
        }
        arguments.set(QLatin1String(row.name), values);
    }
    for (const std::string& path : verb.paths)
        arguments.paths += QString::fromLocal8Bit(path.c_str());
    const QStringList actions = wordsOf(verb.row->actions);
    if (!actions.isEmpty()) {
        if (arguments.paths.isEmpty() || !actions.contains(arguments.paths.front()))
            return tl::make_unexpected(
                misuse(Texts::tr("%1 之后应为 %2 之一。")
                           .arg(arguments.verb, actions.join(Texts::tr("、")))));
        arguments.action = arguments.paths.takeFirst();
    }
    return arguments;
}

QString optionHead(const OptionRow& row)
{
    const QString name = QStringLiteral("  --") + QLatin1String(row.name);
    switch (row.kind) {
    case OptionKind::Flag:
        return name;
    case OptionKind::Text:
        return name + Texts::tr(" 文字");
    case OptionKind::File:
        return name + Texts::tr(" 文件");
    case OptionKind::Folder:
        return name + Texts::tr(" 文件夹");
    case OptionKind::Number:
        return name + Texts::tr(" 数");
    case OptionKind::Choice:
        return name + QLatin1Char(' ') + wordsOf(row.choices).join(QLatin1Char('|'));
    }
    return name;
}

} // namespace

std::vector<OptionRow> optionsOf(const VerbRow& verb)
{
    std::vector<OptionRow> all(verb.options.begin(), verb.options.end());
    if (verb.runAlone)
        return all;
    if (verb.edits)
        all.insert(all.end(), editingOptions().begin(), editingOptions().end());
    for (OptionRow row : commonOptions()) {
        if (qstrcmp(row.name, "format") == 0)
            row.choices = verb.formats;
        all.push_back(row);
    }
    return all;
}

QString helpText()
{
    QString text = Texts::tr("用法：layertool 命令 [选项...] 图形或文件夹...\n\n"
                             "处理一个或许多 DXF 图形的图层，不需要窗口。\n\n命令：\n");
    for (const VerbRow& row : verbs())
        text += QStringLiteral("  ") + padded(QLatin1String(row.name), 12) + Texts::tr(row.text) +
                QLatin1Char('\n');
    text += Texts::tr("  completion  输出 bash 或 zsh 的命令补全脚本\n"
                      "  help        显示用法，或一个命令的用法\n\n"
                      "完成且没有发现时返回 0；有发现、有差别或有图形失败时返回 1；"
                      "用法、标准或表格有误时返回 2；中断时返回 128 加信号的编号。\n");
    return text;
}

QString helpText(const VerbRow& verb)
{
    const QString actions = wordsOf(verb.actions).join(QLatin1Char('|'));
    QString text =
        Texts::tr("用法：layertool %1%2 [选项...] %3\n\n%4\n\n选项：\n")
            .arg(QLatin1String(verb.name),
                actions.isEmpty() ? QString() : QLatin1Char(' ') + actions,
                verb.inputs == Inputs::Pairs ? Texts::tr("甲 乙") : Texts::tr("图形或文件夹..."),
                Texts::tr(verb.text));
    constexpr int kHeadWidth = 28;
    for (const OptionRow& row : optionsOf(verb)) {
        const QString head = optionHead(row);
        text += widthOf(head) < kHeadWidth
                    ? padded(head, kHeadWidth)
                    : head + QLatin1Char('\n') + QString(kHeadWidth, QLatin1Char(' '));
        text += Texts::tr(row.text) + QLatin1Char('\n');
    }
    return text;
}

tl::expected<Arguments, EarlyExit> readCommandLine(const QStringList& arguments)
{
    CLI::App program;
    program.set_help_flag();
    std::vector<VerbApp> apps(verbs().size());
    for (size_t i = 0; i < apps.size(); ++i) {
        apps[i].row = &verbs()[i];
        apps[i].options = optionsOf(*apps[i].row);
        addVerb(program, apps[i]);
    }
    const QString word = arguments.value(1);
    const VerbRow* const row = findVerb(word);
    if (!row) {
        const QString near = nearest(word);
        return tl::make_unexpected(
            misuse(near.isEmpty() ? Texts::tr("没有名为“%1”的命令。").arg(word)
                                  : Texts::tr("没有名为“%1”的命令；是不是 %2？").arg(word, near)));
    }
    std::vector<std::string> words; // The library takes them from the back.
    for (int i = arguments.size() - 1; i > 0; --i)
        words.push_back(arguments.at(i).toLocal8Bit().toStdString());
    try {
        program.parse(words);
    } catch (const CLI::ExtrasError&) {
        const auto unknown =
            std::find_if(arguments.begin() + 2, arguments.end(), [&](const QString& a) {
                const auto all = optionsOf(*row);
                return a.startsWith(QLatin1String("--")) && a.size() > 2 &&
                       std::none_of(all.begin(), all.end(), [&a](const OptionRow& option) {
                           return a.mid(2).section(QLatin1Char('='), 0, 0) ==
                                  QLatin1String(option.name);
                       });
            });
        return tl::make_unexpected(
            misuse(Texts::tr("%1 没有名为“%2”的选项。")
                       .arg(word, unknown == arguments.end() ? QString() : *unknown)));
    } catch (const CLI::ParseError& error) {
        return tl::make_unexpected(misuse(
            Texts::tr("%1 的选项有误：%2。").arg(word, QString::fromLocal8Bit(error.what()))));
    }
    const auto used = std::find_if(
        apps.begin(), apps.end(), [](const VerbApp& verb) { return verb.app->parsed(); });
    return argumentsOf(*used);
}

} // namespace layertool
