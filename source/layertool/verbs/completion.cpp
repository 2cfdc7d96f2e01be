#include "verbs.h"

#include "check/rules.h"
#include "commandline.h"
#include "engine/console.h"
#include "engine/run.h"
#include "help.h"
#include "texts.h"

namespace layertool {

namespace {

/// Words that may stand behind a verb besides drawings and folders.
QStringList operandWords(const VerbRow& verb)
{
    if (qstrcmp(verb.name, "explain") != 0)
        return wordsOf(verb.actions);
    QStringList ids;
    for (const Rule& rule : rules())
        ids += QLatin1String(rule.id);
    return ids;
}

QStringList verbNames()
{
    QStringList names;
    for (const VerbRow& verb : verbs())
        names += QLatin1String(verb.name);
    return names;
}

QString dashed(const OptionRow& row)
{
    return QLatin1String("--") + QLatin1String(row.name);
}

/// What bash is to offer for an option's value: the arguments of `compgen`.
QString bashValues(const OptionRow& row)
{
    switch (row.kind) {
    case OptionKind::Choice:
        return QStringLiteral("-W '%1'").arg(QLatin1String(row.choices));
    case OptionKind::Folder:
        return QStringLiteral("-d");
    case OptionKind::File:
        return QStringLiteral("-f");
    case OptionKind::Text: // Some of them are paths.
        return QStringLiteral("-f");
    case OptionKind::Flag:
    case OptionKind::Number:
        break;
    }
    return {};
}

constexpr char kBashHead[] = R"bash(# bash completion of layertool
_layertool() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} verb=${COMP_WORDS[1]}
    local options= words= values=
    # "--name=value" comes as three words.
    if [ "$cur" = = ]; then
        cur=
    elif [ "$prev" = = ]; then
        prev=${COMP_WORDS[COMP_CWORD-2]}
    fi
    COMPREPLY=()
)bash";

constexpr char kBashTail[] = R"bash(    if [ -n "$values" ]; then
        compopt -o filenames
        eval "COMPREPLY=(\$(compgen $values -- \"\$cur\"))"
    elif [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
    else
        local IFS=$' \t\n'
        COMPREPLY=($(compgen -W "$words" -- "$cur"))
        IFS=$'\n'
        COMPREPLY+=($(compgen -f -X '!*.[dD][xX][fF]' -- "$cur") $(compgen -d -- "$cur"))
        compopt -o filenames
    fi
}
complete -F _layertool layertool
)bash";

QString bashCase(const VerbRow& verb)
{
    QStringList options;
    QString values;
    for (const OptionRow& row : optionsOf(verb)) {
        options += dashed(row);
        if (const QString offered = bashValues(row); !offered.isEmpty())
            values +=
                QStringLiteral("            %1) values=\"%2\" ;;\n").arg(dashed(row), offered);
    }
    return QStringLiteral("    %1)\n        options='%2' words='%3'\n        case $prev in\n%4"
                          "        esac ;;\n")
        .arg(QLatin1String(verb.name), options.join(QLatin1Char(' ')),
            operandWords(verb).join(QLatin1Char(' ')), values);
}

QString bashScript()
{
    const QString names = verbNames().join(QLatin1Char(' '));
    QString text = QLatin1String(kBashHead);
    text +=
        QStringLiteral("    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                       "        COMPREPLY=($(compgen -W '%1 %2 --help --version' -- \"$cur\"))\n"
                       "        return\n    fi\n    case $verb in\n")
            .arg(names, QLatin1String(kHelpRow.name));
    for (const VerbRow& verb : verbs())
        text += bashCase(verb);
    text += QStringLiteral("    %1) words='%2' ;;\n    esac\n")
                .arg(QLatin1String(kHelpRow.name), names);
    return text + QLatin1String(kBashTail);
}

/// A text within single quotes, for zsh's descriptions.
QString zshText(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    for (const char c : {'[', ']', ':'})
        text.replace(QLatin1Char(c), QLatin1String("\\") + QLatin1Char(c));
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
}

QString zshValues(const OptionRow& row)
{
    switch (row.kind) {
    case OptionKind::Choice:
        return QStringLiteral(":(%1)").arg(QLatin1String(row.choices));
    case OptionKind::Folder:
        return QStringLiteral(":_files -/");
    case OptionKind::File:
    case OptionKind::Text:
        return QStringLiteral(":_files");
    case OptionKind::Flag:
    case OptionKind::Number:
        break;
    }
    return QStringLiteral(":");
}

QString zshCase(const VerbRow& verb)
{
    QString text = QStringLiteral("    %1) _arguments").arg(QLatin1String(verb.name));
    for (const OptionRow& row : optionsOf(verb)) {
        const bool takesValue = row.kind != OptionKind::Flag;
        text += QStringLiteral(" \\\n        '%1%2[%3]%4'")
                    .arg(row.several ? QStringLiteral("*") : QString(), dashed(row),
                        zshText(Texts::tr(row.text)),
                        takesValue
                            ? QLatin1Char(':') +
                                  zshText(row.kind == OptionKind::Choice ? QLatin1String(row.name)
                                                                         : valueText(row)) +
                                  zshValues(row)
                            : QString());
    }
    const QStringList words = operandWords(verb);
    if (!words.isEmpty())
        text += QStringLiteral(" \\\n        '1: :(%1)'").arg(words.join(QLatin1Char(' ')));
    return text + QStringLiteral(" \\\n        '*: :_files -g \"*.(#i)dxf(-.)\"' ;;\n");
}

QString zshScript()
{
    QString text = QStringLiteral("#compdef layertool\n_layertool() {\n    local -a verbs=(\n");
    for (const VerbRow& verb : verbs())
        text += QStringLiteral("        '%1:%2'\n")
                    .arg(QLatin1String(verb.name), zshText(Texts::tr(verb.text)));
    text += QStringLiteral("        '%1:%2'\n    )\n")
                .arg(QLatin1String(kHelpRow.name), zshText(Texts::tr(kHelpRow.text)));
    text += QStringLiteral("    if (( CURRENT == 2 )); then\n"
                           "        _describe -t commands command verbs\n        return\n    fi\n"
                           "    local verb=$words[2]\n    shift words\n    (( CURRENT-- ))\n"
                           "    case $verb in\n");
    for (const VerbRow& verb : verbs())
        text += zshCase(verb);
    return text + QStringLiteral("    %1) _describe -t commands command verbs ;;\n    esac\n}\n"
                                 "if [ \"$funcstack[1]\" = _layertool ]; then\n"
                                 "    _layertool \"$@\"\nelse\n"
                                 "    compdef _layertool layertool\nfi\n")
                      .arg(QLatin1String(kHelpRow.name));
}

constexpr OptionRow kOptions[] = {
    {"language", OptionKind::Choice,
        QT_TRANSLATE_NOOP("layertool", "显示的语言；不给时依区域设置。"), "zh en"},
};

int runCompletion(const Arguments& arguments)
{
    say(arguments.action == QLatin1String("zsh") ? zshScript() : bashScript());
    return kFine;
}

} // namespace

VerbRow completionVerb()
{
    VerbRow row{"completion", QT_TRANSLATE_NOOP("layertool", "输出 bash 或 zsh 的命令补全脚本。"),
        OptionRows::of(kOptions), "", false, nullptr, "bash zsh"};
    row.runAlone = runCompletion;
    return row;
}

} // namespace layertool
