#include "commandline.h"
#include "help.h"
#include "shellcompletion.h"
#include "texts.h"
#include "words.h"

namespace layertool {

namespace {

QString described(const char* name, const char* text)
{
    return QStringLiteral("        '%1:%2'\n")
        .arg(QLatin1String(name), commandline::zshText(Texts::tr(text)));
}

} // namespace

QString zshScript()
{
    QString body = QStringLiteral("    local -a verbs=(\n");
    for (const VerbRow& verb : verbs())
        body += described(verb.name, verb.text);
    body += described(kHelpRow.name, kHelpRow.text);
    body += QStringLiteral("    )\n"
                           "    if (( CURRENT == 2 )); then\n"
                           "        if [[ $PREFIX == -* ]]; then\n"
                           "            compadd -- --help --version\n        else\n"
                           "            _describe -t commands command verbs\n        fi\n"
                           "        return\n    fi\n"
                           "    local verb=$words[2]\n    shift words\n    (( CURRENT-- ))\n"
                           "    case $verb in\n");
    for (const VerbRow& verb : verbs())
        body += QStringLiteral("    %1) %2 ;;\n")
                    .arg(QLatin1String(verb.name),
                        commandline::zshArguments(
                            optionTexts(optionsOf(verb)), operandWords(verb), operandsOf(verb)));
    body += QStringLiteral("    %1) _describe -t commands command verbs ;;\n    esac\n")
                .arg(QLatin1String(kHelpRow.name));
    return commandline::zshScript("layertool", body);
}

} // namespace layertool
