#include "commandline.h"
#include "help.h"
#include "texts.h"
#include "words.h"

namespace layertool {

namespace {

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
    case OptionKind::Path:
        return QStringLiteral(":_files");
    case OptionKind::Text:
    case OptionKind::Flag:
    case OptionKind::Number:
    case OptionKind::Count:
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

} // namespace

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

} // namespace layertool
