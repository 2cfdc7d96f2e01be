#pragma once

#include "optiontable.h"

/// The parts of a manual page, in roff.
namespace commandline::manualpage {

/// A text as roff takes it: nothing in it is a request, dashes are those one can copy, and lines
/// may end between Chinese characters, where roff would not end them.
QString escaped(const QString& text);

QString title(const char* program, const char* version); ///< Of section 1.
QString section(const QString& heading);                 ///< Heading of what comes behind it.
QString subsection(const QString& heading);
QString line(const QString& text); ///< Right behind a heading.
QString paragraph(const QString& text);
QString option(const OptionText& option);

} // namespace commandline::manualpage
