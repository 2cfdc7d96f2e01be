#pragma once

#include "file/error.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace layertool {

/// Tables as comma-separated values (RFC 4180), as spreadsheets write and read them.
namespace csv {

/// In front of files, so that spreadsheets take them for UTF-8.
inline constexpr char kByteOrderMark[] = "\xef\xbb\xbf";

/// One row with its line end; fields with commas, quotes or line ends are quoted.
QByteArray row(const QStringList& fields);

/// Takes a table apart, whoever wrote it: with a mark in front, separated by commas, semicolons or
/// tabs (the one that the first row holds most of), in UTF-8, UTF-16 with a mark, or GBK. Rows
/// without any text are empty lists, so that places are those a spreadsheet shows. Refuses a quote
/// that is never closed, naming its line.
drawing::Expected<std::vector<QStringList>> parse(const QByteArray& bytes);

/// The table in a file. Refuses one that cannot be read.
drawing::Expected<std::vector<QStringList>> read(const QString& path);

} // namespace csv
} // namespace layertool
