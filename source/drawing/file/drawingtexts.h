#pragma once

#include <QCoreApplication>

namespace drawing {

/// Where the library's texts are translated: `Texts::tr("...")`, and `Texts::tr(row.text)` for the
/// texts of tables, which are marked with QT_TRANSLATE_NOOP("drawing", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(drawing)
};

} // namespace drawing
