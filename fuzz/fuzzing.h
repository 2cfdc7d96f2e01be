#pragma once

#include <QByteArray>
#include <QString>
#include <fuzzer/FuzzedDataProvider.h>

/// Functions that the fuzz targets share. A target takes any bytes and ends the program when the
/// product does something forbidden; the sanitizers find everything else.
namespace fuzz {

/// Ends the program when a condition does not hold; `what` describes the condition.
void require(bool holds, const char* what);

/// A folder of this process, in memory if the system offers that. It is removed when the program
/// ends.
QString scratchFolder();
/// Writes a file in the scratch folder, replacing an earlier one, and returns its path.
QString writeScratch(const char* name, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// Takes a text of at most `longest` bytes from the fuzzed bytes.
QString takeText(FuzzedDataProvider& bytes, std::size_t longest);

} // namespace fuzz
