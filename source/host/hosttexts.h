#pragma once

#include <QCoreApplication>

namespace host {

/// Where the host's texts are translated outside of its windows, which have a `tr` of their own:
/// `Texts::tr("...")`, and `Texts::tr(row.text)` for the texts of tables, which are marked with
/// QT_TRANSLATE_NOOP("host", "...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace host
