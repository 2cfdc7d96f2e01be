#pragma once

#include "language.h"

#include <QCoreApplication>

namespace layertool {

/// The translation context of the program's texts. Use `Texts::tr("...")`, or `Texts::tr(row.text)`
/// for texts in tables, which are marked with QT_TRANSLATE_NOOP("layertool", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(layertool)
};

/// Sets the language of the program's texts: one of `language::kCodes`, or the locale's when `code`
/// is empty.
inline void useLanguage(const QString& code)
{
    language::use(code, {QStringLiteral("drawing"), QStringLiteral("layertool")});
}

} // namespace layertool
