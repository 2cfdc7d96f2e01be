#pragma once

#include "engine/job.h"
#include "rules.h"

namespace layertool {

/// Puts findings into a result's data, a row each: what, where (the lines of the layer's record, or
/// its bytes in a binary file), and a fingerprint that tells it again in a later run.
void addFindings(
    const std::vector<Finding>& findings, const drawing::Drawing& drawing, Result& result);

/// Known findings, by their fingerprints: a baseline.
class Baseline
{
public:
    /// Reads what the format "baseline" wrote: a fingerprint a line, words for people behind it.
    drawing::Expected<void> read(const QString& path);
    bool knows(const QJsonObject& finding) const;

private:
    QSet<QString> m_fingerprints;
};

} // namespace layertool
