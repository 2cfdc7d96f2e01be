#pragma once

#include <QCoreApplication>

/// Where the workbench's texts are translated outside of its windows, which have a `tr` of their
/// own: `Texts::tr("...")`, and `Texts::tr(row.text)` for the texts of tables, which are marked with
/// QT_TRANSLATE_NOOP("workbench", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(workbench)
};
