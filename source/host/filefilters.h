#pragma once

#include <QStringList>

namespace host {

/// Splits a filter text into its entries. They are separated by ";;", "|" or a line end, or end
/// with a closing parenthesis. Patterns are added to an entry that consists of bare extensions
/// ("dwg dxf").
QStringList splitFilters(const QString& filter);

/// Whether an entry is for drawings, drawing templates or standards in their binary forms.
bool asksForDrawings(const QString& entry);

/// The entries, with the one form that drawings are read and written in at their head where one of
/// them asks for drawings.
QStringList withReadableForm(QStringList entries);

/// The extension of an entry's first pattern; empty for "*.*" and when there is no pattern.
QString firstExtension(const QString& entry);

} // namespace host
