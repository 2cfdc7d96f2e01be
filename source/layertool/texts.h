#pragma once

#include <QCoreApplication>

namespace layertool {

/// Where the program's texts are translated: `Texts::tr("...")`, and `Texts::tr(row.text)` for the
/// texts of tables, which are marked with QT_TRANSLATE_NOOP("layertool", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(layertool)
};

} // namespace layertool
