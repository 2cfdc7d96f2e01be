#include "shellcompletion.h"

namespace commandline {

namespace {

constexpr char kBashHead[] = R"bash(# bash completion of %1
_%1() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
    local options= words= values= operands=drawings
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
        [ "$operands" = drawings ] && COMPREPLY+=($(compgen -f -X '!*.[dD][xX][fF]' -- "$cur"))
        [ "$operands" = words ] || COMPREPLY+=($(compgen -d -- "$cur"))
        compopt -o filenames
    fi
}
complete -F _%1 %1
)bash";

constexpr char kZshFrame[] = R"zsh(#compdef %1
_%1() {
%2}
if [ "$funcstack[1]" = _%1 ]; then
    _%1 "$@"
else
    compdef _%1 %1
fi
)zsh";

/// What shells offer for the values of a kind of option; %1 stands for the words of a choice.
struct ValueRow
{
    OptionKind kind;
    const char* bash; ///< Arguments of `compgen`.
    const char* zsh;  ///< The end of an option's entry for `_arguments`.
};

constexpr ValueRow kValues[] = {
    {OptionKind::Choice, "-W '%1'", ":(%1)"},
    {OptionKind::Folder, "-d", ":_files -/"},
    {OptionKind::File, "-f", ":_files"},
    {OptionKind::Path, "-f", ":_files"},
};

QString values(const OptionRow& row, const char* ValueRow::*shell, const char* otherwise)
{
    for (const ValueRow& value : kValues) {
        if (value.kind == row.kind)
            return QString::fromLatin1(value.*shell).replace("%1", QLatin1String(row.choices));
    }
    return QLatin1String(otherwise);
}

QString bashValues(const OptionRow& row)
{
    return values(row, &ValueRow::bash, "");
}

QString zshValues(const OptionRow& row)
{
    return values(row, &ValueRow::zsh, ":");
}

/// How scripts call a kind of operands: the word in that of bash, the last entry for `_arguments`.
struct OperandsRow
{
    Operands operands;
    const char* bash;
    const char* zsh;
};

constexpr OperandsRow kOperands[] = {
    {Operands::Drawings, "drawings", " \\\n        '*: :_files -g \"*.(#i)dxf(-.)\"'"},
    {Operands::Folders, "folders", " \\\n        '*: :_files -/'"},
    {Operands::Words, "words", ""},
};

const OperandsRow& rowOf(Operands operands)
{
    return kOperands[static_cast<int>(operands)];
}

QString zshOption(const OptionText& option)
{
    const OptionRow& row = option.row;
    const bool takesValue = row.kind != OptionKind::Flag;
    // With the sign, a value may come as the next word or behind the sign.
    QString text = QStringLiteral("'%1%2%3[%4]")
                       .arg(row.several ? QStringLiteral("*") : QString(), dashed(row),
                           takesValue ? QStringLiteral("=") : QString(), zshText(option.text));
    if (takesValue)
        text += QLatin1Char(':') +
                zshText(row.kind == OptionKind::Choice ? QLatin1String(row.name) : option.value) +
                zshValues(row);
    return text + QLatin1Char('\'');
}

} // namespace

QString bashScript(const char* program, const QString& body)
{
    const auto named = [program](const char* text) {
        return QString(QLatin1String(text)).replace(QLatin1String("%1"), QLatin1String(program));
    };
    return named(kBashHead) + body + named(kBashTail);
}

QString bashWords(
    const std::vector<OptionRow>& options, const QStringList& words, Operands operands)
{
    QStringList names;
    QString values;
    for (const OptionRow& row : options) {
        names += dashed(row);
        if (const QString offered = bashValues(row); !offered.isEmpty())
            values +=
                QStringLiteral("            %1) values=\"%2\" ;;\n").arg(dashed(row), offered);
    }
    return QStringLiteral("        options='%1' words='%2' operands=%3\n        case $prev in\n%4"
                          "        esac\n")
        .arg(names.join(QLatin1Char(' ')), words.join(QLatin1Char(' ')),
            QLatin1String(rowOf(operands).bash), values);
}

QString zshScript(const char* program, const QString& body)
{
    return QString(QLatin1String(kZshFrame)).arg(QLatin1String(program), body);
}

QString zshArguments(
    const std::vector<OptionText>& options, const QStringList& words, Operands operands)
{
    QString text = QStringLiteral("_arguments");
    for (const OptionText& option : options)
        text += QLatin1String(" \\\n        ") + zshOption(option);
    if (!words.isEmpty())
        text += QStringLiteral(" \\\n        '%1: :(%2)'")
                    .arg(operands == Operands::Words ? QStringLiteral("*") : QStringLiteral("1"),
                        words.join(QLatin1Char(' ')));
    return text + QLatin1String(rowOf(operands).zsh);
}

QString zshText(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    for (const char c : {'[', ']', ':'})
        text.replace(QLatin1Char(c), QLatin1String("\\") + QLatin1Char(c));
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
}

} // namespace commandline
