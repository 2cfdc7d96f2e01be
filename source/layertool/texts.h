#pragma once

#include "language.h"

#include <QCoreApplication>

namespace layertool {

/// Where the program's texts are translated: `Texts::tr("...")`, and `Texts::tr(row.text)` for the
/// texts of tables, which are marked with QT_TRANSLATE_NOOP("layertool", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(layertool)
};

/// Shows the program's texts in a language: "zh", "en", or that of the locale where it is empty.
inline void useLanguage(const QString& code)
{
    language::use(code, {QStringLiteral("drawing"), QStringLiteral("layertool")});
}

} // namespace layertool
