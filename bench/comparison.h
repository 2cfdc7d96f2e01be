#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <vector>

namespace bench {

/// Does the work once and returns what it took, in seconds or bytes; what it sets up is not
/// counted.
using Run = std::function<double()>;

/// The two runs of a row with what they share; it lives as long as they do.
struct Sides
{
    Run measured;
    Run compared;
    QString comparedWith; ///< What the compared run does.
};

/// What a ratio is held against.
struct Budget
{
    enum class Kind {
        AtMostTimes,        ///< measured / compared.
        AtLeastTimesFaster, ///< compared / measured.
        GrowthExponent,     ///< Decimal logarithm of measured / compared, for `decades` of size.
        AtMostSeconds,      ///< measured.
        None                ///< A figure without a budget.
    };
    Kind kind = Kind::None;
    double limit = 0;
    double decades = 1;
};

/// What a row measures: time on either clock, or memory.
enum class Measure { Processor, Wall, Memory };

/// One row of the table.
struct Row
{
    const char* name; ///< Of the benchmark.
    QString what;
    Measure measure;
    Budget budget;
    int samples;      ///< Of each side.
    int quickSamples; ///< The same in a short run.
    /// Makes the sides, or says why they cannot be measured.
    std::function<tl::expected<Sides, QString>()> prepare;
};

/// Runs rows as benchmarks and keeps what they found.
class Report
{
public:
    /// Registers each row as one benchmark whose iterations run both sides in turn, so that
    /// whatever slows the machine down slows both.
    void registerRows(const std::vector<Row>& rows, bool quick);
    /// The table as Markdown, of the rows that ran.
    QString table() const;
    /// Whether a row could not be measured.
    bool hasFailed() const { return m_failed; }

private:
    struct Result
    {
        Row row;
        QString comparedWith;
        double measured; ///< Median.
        double compared;
    };

    static QString line(const Result& result);

    std::vector<Result> m_results;
    bool m_failed = false;
};

} // namespace bench
