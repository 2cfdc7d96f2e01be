#include "comparison.h"

#include <benchmark/benchmark.h>

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

double median(std::vector<double> samples)
{
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

QString shownTime(double seconds)
{
    if (seconds < 1e-3)
        return QStringLiteral("%1 µs").arg(seconds * 1e6, 0, 'f', 1);
    if (seconds < 1)
        return QStringLiteral("%1 ms").arg(seconds * 1e3, 0, 'f', seconds < 0.1 ? 2 : 0);
    return QStringLiteral("%1 s").arg(seconds, 0, 'f', 2);
}

constexpr const char* kMeasureNames[] = {"processor", "wall", "memory"};

QString shown(Measure measure, double value)
{
    return measure == Measure::Memory ? QStringLiteral("%1 bytes").arg(value, 0, 'f', 0)
                                      : shownTime(value);
}

struct Judgement
{
    QString ratio;
    QString budget;
    QString verdict;
};

Judgement judge(const Budget& budget, double measured, double compared)
{
    const double times = measured / compared;
    const bool isSmall = times < 0.01; // Two decimals are not enough when one side is much slower.
    const QString ratio = QStringLiteral("%1 times").arg(times, 0, 'f', isSmall ? 4 : 2);
    const auto verdict = [](bool isMet) {
        return isMet ? QStringLiteral("met") : QStringLiteral("not met");
    };
    const auto judged = [&](const char* shape, double value, const char* limit, bool isMet) {
        return Judgement{QString::fromLatin1(shape).arg(value, 0, 'f', 2),
            QString::fromLatin1(limit).arg(budget.limit), verdict(isMet)};
    };
    switch (budget.kind) {
    case Budget::Kind::AtMostTimes:
        return judged("%1 times", times, "<= %1 times", times <= budget.limit);
    case Budget::Kind::AtLeastTimesFaster:
        return judged(
            "%1 times faster", 1 / times, ">= %1 times faster", 1 / times >= budget.limit);
    case Budget::Kind::GrowthExponent: {
        const double exponent = std::log10(times) / budget.decades;
        return judged("exponent %1", exponent, "exponent <= %1", exponent <= budget.limit);
    }
    case Budget::Kind::AtMostSeconds:
        return {ratio, QStringLiteral("<= %1").arg(shownTime(budget.limit)),
            verdict(measured <= budget.limit)};
    case Budget::Kind::None:
        break;
    }
    return {ratio, QStringLiteral("none"), QStringLiteral("figure")};
}

} // namespace

void Report::registerRows(const std::vector<Row>& rows, bool quick)
{
    for (const Row& row : rows) {
        const auto run = [this, row](benchmark::State& state) {
            const auto sides = row.prepare();
            if (!sides) {
                m_failed = true;
                state.SkipWithError(sides.error().toUtf8().constData());
                return;
            }
            // The first round warms up caches and the allocator.
            sides->measured();
            sides->compared();
            std::vector<double> measured;
            std::vector<double> compared;
            for (auto _ : state) {
                measured.push_back(sides->measured());
                compared.push_back(sides->compared());
                state.SetIterationTime(measured.back());
            }
            m_results.push_back({row, sides->comparedWith, median(measured), median(compared)});
            state.counters["median"] = m_results.back().measured;
            state.counters["compared"] = m_results.back().compared;
        };
        benchmark::RegisterBenchmark(row.name, run)
            ->Iterations(quick ? row.quickSamples : row.samples)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

QString Report::line(const Result& result)
{
    const Judgement judgement = judge(result.row.budget, result.measured, result.compared);
    const Measure measure = result.row.measure;
    const QStringList cells{result.row.what, shown(measure, result.measured),
        QStringLiteral("%1: %2").arg(result.comparedWith, shown(measure, result.compared)),
        judgement.ratio, judgement.budget, judgement.verdict,
        QString::fromLatin1(kMeasureNames[static_cast<std::size_t>(measure)])};
    return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | ")));
}

QString Report::table() const
{
    QString text =
        QStringLiteral("| what | measured | compared with | ratio | budget | met | clock |\n"
                       "| --- | --- | --- | --- | --- | --- | --- |\n");
    for (const Result& result : m_results)
        text += line(result);
    return text;
}

} // namespace bench
