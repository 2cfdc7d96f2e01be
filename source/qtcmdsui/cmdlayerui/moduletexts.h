#pragma once

#include <QCoreApplication>

namespace vnsi {

/// Where the module's texts are translated outside of its dialogs, which have a `tr` of their own:
/// `Texts::tr("...")`, and `Texts::tr(row.text)` for the texts of tables, which are marked with
/// QT_TRANSLATE_NOOP("cmdlayerui", "..."). The Chinese of the sources is what a host without a
/// translator shows.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(cmdlayerui)
};

} // namespace vnsi
