#pragma once

#include <functional>
#include <utility>

namespace drawing {

/// Lets long work on one thread take breaks, in which for example a window can be painted.
class Pace
{
public:
    /// Sets the function that a break calls. It must not change the drawing.
    void setBreak(std::function<void()> rest) { m_rest = std::move(rest); }

    /// Counts one piece of work as done and takes a break now and then.
    void step()
    {
        constexpr int kStepsBetween = 256;
        if (++m_steps < kStepsBetween)
            return;
        m_steps = 0;
        if (m_rest)
            m_rest();
    }

private:
    std::function<void()> m_rest;
    int m_steps = 0;
};

} // namespace drawing
