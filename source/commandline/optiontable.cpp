#include "optiontable.h"

namespace commandline {

QStringList wordsOf(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString dashed(const OptionRow& row)
{
    return QLatin1String("--") + QLatin1String(row.name);
}

} // namespace commandline
