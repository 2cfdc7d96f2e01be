#pragma once

#include <QStringList>

/// The language of a program's texts. The sources are in Chinese; each library has translations to
/// other languages in ":/i18n/NAME_CODE.qm".
namespace language {

/// The codes of the available languages; that of the sources comes first.
inline constexpr char kCodes[] = "zh en";

/// Whether the language with this code is available.
bool isKnown(const QString& code);
/// Shows the texts of these libraries, and those of Qt, in a language. An empty or unknown code
/// means the language of the locale, or English when that is not available. This replaces the
/// choice of an earlier call, but texts that are already visible stay as they are.
void use(const QString& code, const QStringList& libraries);
/// The value of "--language" anywhere on the command line; empty when it is missing. It is read
/// before everything else because it also applies to help and error messages.
QString asked(const QStringList& words);

} // namespace language
