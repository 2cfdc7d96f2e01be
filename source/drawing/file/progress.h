#pragma once

#include <atomic>
#include <functional>

namespace drawing {

/// Told of long work as it goes on; called on the working thread.
struct Progress
{
    std::function<void(int percent)> report; ///< May be empty.
    std::atomic<bool> cancelled{false};      ///< Set from any thread to stop the work.
};

} // namespace drawing
