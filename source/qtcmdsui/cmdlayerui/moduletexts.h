#pragma once

#include <QCoreApplication>

namespace vnsi {

/// The translation context of module texts outside of dialogs, which have a `tr` of their own. Use
/// `Texts::tr("...")`, or `Texts::tr(row.text)` for texts in tables, which are marked with
/// QT_TRANSLATE_NOOP("cmdlayerui", "..."). A host without a translator shows the Chinese texts of
/// the sources.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(cmdlayerui)
};

} // namespace vnsi
