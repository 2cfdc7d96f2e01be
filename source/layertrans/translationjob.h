#pragma once

#include "options.h"
#include "outcome.h"
#include "standardsfile.h"

namespace drawing {
struct Progress;
}

/// Translates drawings to one standard, each into a file of its own.
class TranslationJob
{
public:
    TranslationJob(const Options& options, drawing::Standard standard)
        : m_options(options),
          m_standard(std::move(standard))
    {
    }

    /// Runs one job. What it writes comes to the output folder only when whole, the drawing last.
    Outcome run(const Job& job, drawing::Progress& progress) const;

private:
    drawing::TranslationReport translate(drawing::Drawing& drawing) const;
    drawing::Expected<void> write(drawing::Drawing& drawing,
        const drawing::TranslationReport& report, const Job& job,
        drawing::Progress& progress) const;

    const Options& m_options;
    drawing::Standard m_standard;
};
