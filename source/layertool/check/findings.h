#pragma once

#include "engine/job.h"
#include "rules.h"

namespace layertool {

/// Adds findings to a result's data, one row each: the finding, its position (the lines of the
/// layer's record, or its bytes in a binary file), and a fingerprint that identifies it in later
/// runs.
void addFindings(
    const std::vector<Finding>& findings, const drawing::Drawing& drawing, Result& result);

/// A baseline: known findings, identified by their fingerprints.
class Baseline
{
public:
    /// Reads a file in the format "baseline": one fingerprint per line, followed by text for
    /// people.
    drawing::Expected<void> read(const QString& path);
    bool knows(const QJsonObject& finding) const;

private:
    QSet<QString> m_fingerprints;
};

} // namespace layertool
