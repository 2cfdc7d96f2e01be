#include "commandline.h"
#include "help.h"
#include "shellcompletion.h"
#include "words.h"

namespace layertool {

QString bashScript()
{
    QStringList names;
    for (const VerbRow& verb : verbs())
        names += QLatin1String(verb.name);
    QString body =
        QStringLiteral("    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                       "        COMPREPLY=($(compgen -W '%1 %2 --help --version' -- \"$cur\"))\n"
                       "        return\n    fi\n    case ${COMP_WORDS[1]} in\n")
            .arg(names.join(QLatin1Char(' ')), QLatin1String(kHelpRow.name));
    for (const VerbRow& verb : verbs())
        body += QStringLiteral("    %1)\n%2        ;;\n")
                    .arg(QLatin1String(verb.name), commandline::bashWords(optionsOf(verb),
                                                       operandWords(verb), operandsOf(verb)));
    body += QStringLiteral("    %1) words='%2' operands=words ;;\n    esac\n")
                .arg(QLatin1String(kHelpRow.name), names.join(QLatin1Char(' ')));
    return commandline::bashScript("layertool", body);
}

} // namespace layertool
