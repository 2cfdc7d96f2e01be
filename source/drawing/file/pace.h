#pragma once

#include <functional>
#include <utility>

namespace drawing {

/// Lets long work on one thread take breaks, in which a window can be painted.
class Pace
{
public:
    /// What is done in a break; it must leave the drawing as it is.
    void setBreak(std::function<void()> rest) { m_rest = std::move(rest); }

    /// One more piece of work is done: time for a break now and then.
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
