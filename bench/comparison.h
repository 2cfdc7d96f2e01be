#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <vector>

namespace bench {

/// Does the work once and returns what it took, in seconds or bytes. Preparations are not counted.
using Run = std::function<double()>;

/// The two runs of a row and the data that they share, which lives as long as this object.
struct Sides
{
    Run measured;
    Run compared;
    QString comparedWith; ///< What the compared run does.
};

/// The limit that a ratio must keep.
struct Budget
{
    enum class Kind {
        AtMostTimes,        ///< measured / compared.
        AtLeastTimesFaster, ///< compared / measured.
        /// The decimal logarithm of measured / compared, divided by `decades`, the growth of the
        /// size.
        GrowthExponent,
        AtMostSeconds, ///< measured.
        None           ///< A figure without a limit.
    };
    Kind kind = Kind::None;
    double limit = 0;
    double decades = 1;
};

/// The quantity that a row measures: time on one of two clocks, or memory.
enum class Measure { Processor, Wall, Memory };

/// One row of the resulting table.
struct Row
{
    const char* name; ///< The name of the benchmark.
    QString what;
    Measure measure;
    Budget budget;
    int samples;      ///< The number of samples of each side.
    int quickSamples; ///< The number of samples in a short run.
    /// Makes the two sides, or returns why they cannot be measured.
    std::function<tl::expected<Sides, QString>()> prepare;
};

/// Runs rows as benchmarks and keeps their results.
class Report
{
public:
    /// Registers each row as one benchmark. Its iterations run both sides in turn, so that whatever
    /// slows down the machine affects both.
    void registerRows(const std::vector<Row>& rows, bool quick);
    /// The table of the rows that ran, as Markdown.
    QString table() const;
    /// Whether a row could not be measured.
    bool hasFailed() const { return m_failed; }

private:
    struct Result
    {
        Row row;
        QString comparedWith;
        double measured; ///< The median.
        double compared;
    };

    static QString line(const Result& result);

    std::vector<Result> m_results;
    bool m_failed = false;
};

} // namespace bench
