#include "nameorder.h"

QCollator nameCollator()
{
    QLocale locale = QLocale().collation();
    if (locale.language() == QLocale::C) // It compares codes and knows no numbers.
        locale = QLocale(QLocale::Chinese, QLocale::China);
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}
