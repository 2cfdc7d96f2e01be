#pragma once

#include <QCoreApplication>

namespace drawing {

/// The translation context of the library's texts. Use `Texts::tr("...")`, or `Texts::tr(row.text)`
/// for texts in tables, which are marked with QT_TRANSLATE_NOOP("drawing", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(drawing)
};

} // namespace drawing
