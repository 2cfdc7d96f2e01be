#pragma once

#include <QCoreApplication>

/// The translation context of workbench texts outside of windows, which have a `tr` of their own.
/// Use `Texts::tr("...")`, or `Texts::tr(row.text)` for texts in tables, which are marked with
/// QT_TRANSLATE_NOOP("workbench", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(workbench)
};
