#pragma once

#include <QString>

#include <string_view>
#include <vector>

namespace drawing {

/// A code page that drawings can be encoded in.
struct CodePage
{
    const char* name;    ///< The name in drawings.
    const char* charset; ///< The name for the system's converter.
    const char* title;   ///< The language, as shown to users; not translated.
};

/// The code pages to choose from, common ones first.
const std::vector<CodePage>& codePages();
/// The system converter's name for a code page that a drawing names. Letter case, `_` and `-` do
/// not matter. Empty for an unknown or empty name.
QByteArray charsetOfCodePage(std::string_view name);
/// Whether the name says nothing about characters beyond ASCII: it is `ASCII`, `UNDEFINED` or
/// empty.
bool isNoCodePage(std::string_view name);
/// The title of a code page as shown to users, found by the converter's name: `简体中文 GBK
/// (ANSI_936)`.
QString codePageTitle(const QByteArray& charset);

} // namespace drawing
