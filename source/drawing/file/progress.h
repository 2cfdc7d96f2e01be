#pragma once

#include <atomic>
#include <functional>

namespace drawing {

/// The progress of long work. `report` is called on the working thread.
struct Progress
{
    std::function<void(int percent)> report; ///< May be empty.
    std::atomic<bool> cancelled{false};      ///< May be set from any thread to stop the work.
};

} // namespace drawing
