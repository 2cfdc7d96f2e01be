#include "nameorder.h"

QCollator nameCollator()
{
    QLocale locale = QLocale().collation();
    // This locale compares codes and does not recognise numbers.
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::Chinese, QLocale::China);
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}
