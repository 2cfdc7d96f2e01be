#pragma once

#include <utility>

namespace bench {

enum class Clock {
    Processor, ///< User and system time of this thread, which other programs do not disturb.
    Wall       ///< For work that waits for the disk.
};

/// The time in seconds since a fixed moment.
double now(Clock clock);

/// The seconds that `work` takes.
template <class Work>
double timed(Clock clock, Work&& work)
{
    const double begin = now(clock);
    std::forward<Work>(work)();
    return now(clock) - begin;
}

} // namespace bench
