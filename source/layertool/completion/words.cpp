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

} // namespace layertool
