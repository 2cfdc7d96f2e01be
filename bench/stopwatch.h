#pragma once

#include <utility>

namespace bench {

enum class Clock {
    Processor, ///< User and system time of this thread: other programs do not disturb it.
    Wall       ///< For work that waits for the disk.
};

/// Seconds since some fixed moment.
double now(Clock clock);

/// Seconds that `work` takes.
template <class Work>
double timed(Clock clock, Work&& work)
{
    const double begin = now(clock);
    std::forward<Work>(work)();
    return now(clock) - begin;
}

} // namespace bench
