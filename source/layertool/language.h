#pragma once

#include <QString>

namespace layertool {

/// Shows the program's texts in a language: "zh", "en", or that of the locale where it is empty.
void useLanguage(const QString& language);

} // namespace layertool
