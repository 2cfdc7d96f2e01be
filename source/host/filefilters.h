#pragma once

#include <QStringList>

namespace host {

/// The entries of a filter text: parted by ";;", "|", a line end, or a closing parenthesis. An
/// entry of bare extensions ("dwg dxf") gets its patterns.
QStringList splitFilters(const QString& filter);

/// The extension of an entry's first pattern; empty for "*.*" and where there is none.
QString firstExtension(const QString& entry);

} // namespace host
