#pragma once

#include "formats/printer.h"

namespace layertool {

/// Makes a printer for findings. The formats are "text" (drawing:layer: rule: sentence), "sarif"
/// (SARIF 2.1.0, OASIS), "junit" (the XML that build servers read) and "baseline". Returns null for
/// other formats.
std::unique_ptr<Printer> makeFindingPrinter(const QString& format, const Printing& printing);

} // namespace layertool
