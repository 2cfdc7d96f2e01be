#pragma once

#include <QString>

#include <string_view>
#include <vector>

namespace drawing {

/// A way to write text as bytes, of those that drawings are in.
struct CodePage
{
    const char* name;    ///< As drawings declare it.
    const char* charset; ///< As the system's converter knows it.
    const char* title;   ///< The language, for users; not translated.
};

/// Those to choose from, the common ones first.
const std::vector<CodePage>& codePages();
/// What the system's converter calls the code page that drawings name so, whatever its letter case
/// and with or without `_` and `-`; empty for one that nobody knows, and for no name at all.
QByteArray charsetOfCodePage(std::string_view name);
/// Whether the name says nothing of letters beyond ASCII: `ASCII`, `UNDEFINED`, or nothing at all.
bool isNoCodePage(std::string_view name);
/// A code page for users, by the converter's name: `简体中文 GBK (ANSI_936)`.
QString codePageTitle(const QByteArray& charset);

} // namespace drawing
