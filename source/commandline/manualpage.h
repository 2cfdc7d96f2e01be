#pragma once

#include "optiontable.h"

/// The parts of a manual page, in roff.
namespace commandline::manualpage {

/// Escapes a text for roff: nothing in it is a request, dashes can be copied, and lines may be
/// broken between Chinese characters, which roff would not do by itself.
QString escaped(const QString& text);

QString title(const char* program, const QString& version); ///< For section 1 of the manual.
QString section(const QString& heading);                    ///< The heading of the text after it.
QString subsection(const QString& heading);
QString line(const QString& text); ///< A line directly after a heading.
QString paragraph(const QString& text);
QString option(const OptionText& option);

} // namespace commandline::manualpage
