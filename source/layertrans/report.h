#pragma once

#include "outcome.h"

#include <QStringList>

#include <tl/expected.hpp>

/// Writes a CSV file (UTF-8, with a mark for spreadsheets), a row a drawing. Refuses with a
/// sentence.
tl::expected<void, QString> writeReport(const QString& path, const Outcomes& outcomes);

tl::expected<Outcomes, QString> readReport(const QString& path);

/// These outcomes, but of drawings that were only skipped what the report at `path` says, where
/// there is one: a run that is repeated finds most of them done.
Outcomes withEarlier(Outcomes outcomes, const QString& path);

/// Puts reports together, a row a drawing. Of several the later one counts, but a drawing that was
/// only skipped keeps what an earlier report says of it.
Outcomes merged(const std::vector<Outcomes>& reports);
