#include "words.h"

#include "check/rules.h"

namespace layertool {

QStringList operandWords(const VerbRow& verb)
{
    if (qstrcmp(verb.name, "explain") != 0)
        return wordsOf(verb.actions);
    QStringList ids;
    for (const Rule& rule : rules())
        ids += QLatin1String(rule.id);
    return ids;
}

commandline::Operands operandsOf(const VerbRow& verb)
{
    if (!verb.runAlone)
        return commandline::Operands::Drawings;
    const bool takesFolders = *verb.operands && operandWords(verb).isEmpty();
    return takesFolders ? commandline::Operands::Folders : commandline::Operands::Words;
}

} // namespace layertool
