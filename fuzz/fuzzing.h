#pragma once

#include <QByteArray>
#include <QString>
#include <fuzzer/FuzzedDataProvider.h>

/// What the fuzz targets share. A target takes any bytes and ends the program where the product
/// does something it must never do; the sanitizers see to the rest.
namespace fuzz {

/// Ends the program, telling `what` must hold, when it does not.
void require(bool holds, const char* what);

/// A folder of this process in memory where the system has such, removed when the program ends.
QString scratchFolder();
/// Writes a file of the scratch folder anew and gives back its path.
QString writeScratch(const char* name, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// The next of the fuzzed bytes as text.
QString takeText(FuzzedDataProvider& bytes, std::size_t longest);

} // namespace fuzz
