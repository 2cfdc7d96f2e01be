#pragma once

#include <QStringList>

/// The language that a program's texts are shown in. The sources are Chinese; other languages lie
/// beside them as translations, ":/i18n/NAME_CODE.qm" for each library.
namespace language {

/// The languages that there are, that of the sources first.
inline constexpr char kCodes[] = "zh en";

/// Whether there is a language of this code.
bool isKnown(const QString& code);
/// Shows the texts of these libraries, and Qt's own, in a language; where it is empty, in that of
/// the locale, which is English where the locale's own is not there. Takes the place of what an
/// earlier call chose. Texts that are shown already stay as they are.
void use(const QString& code, const QStringList& libraries);
/// What "--language" says among a command line's words, wherever it stands; empty where it is
/// missing. It counts for help and refusals, too, and is looked for before all else.
QString asked(const QStringList& words);

} // namespace language
