#pragma once

#include <QCoreApplication>

namespace host {

/// The translation context of host texts outside of windows, which have a `tr` of their own. Use
/// `Texts::tr("...")`, or `Texts::tr(row.text)` for texts in tables, which are marked with
/// QT_TRANSLATE_NOOP("host", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace host
