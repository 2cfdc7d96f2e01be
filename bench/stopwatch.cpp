#include "stopwatch.h"

#include <ctime>

namespace bench {

double now(Clock clock)
{
    timespec time{};
    clock_gettime(clock == Clock::Processor ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace bench
