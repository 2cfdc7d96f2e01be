#pragma once

#include "file/error.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace layertool {

/// Tables as comma-separated values (RFC 4180), which spreadsheets read and write.
namespace csv {

/// Put in front of a file so that spreadsheets recognise UTF-8.
inline constexpr char kByteOrderMark[] = "\xef\xbb\xbf";

/// One row including its line end. Fields with commas, quotes or line ends are quoted.
QByteArray row(const QStringList& fields);

/// Parses a table from any program: with or without a byte order mark; separated by commas,
/// semicolons or tabs, whichever occurs most in the first row; encoded in UTF-8, UTF-16 (with a
/// mark) or GBK. Rows without any text become empty lists, so that row numbers match those in a
/// spreadsheet. Refuses a quote that is never closed and names its line.
drawing::Expected<std::vector<QStringList>> parse(const QByteArray& bytes);

/// Parses the table in a file. Refuses a file that cannot be read.
drawing::Expected<std::vector<QStringList>> read(const QString& path);

} // namespace csv
} // namespace layertool
