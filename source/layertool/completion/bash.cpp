#include "commandline.h"
#include "help.h"
#include "words.h"

namespace layertool {

namespace {

QStringList verbNames()
{
    QStringList names;
    for (const VerbRow& verb : verbs())
        names += QLatin1String(verb.name);
    return names;
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
    case OptionKind::Path:
        return QStringLiteral("-f");
    case OptionKind::Text:
    case OptionKind::Flag:
    case OptionKind::Number:
    case OptionKind::Count:
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

} // namespace

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

} // namespace layertool
