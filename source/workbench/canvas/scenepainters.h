#pragma once

#include "scenepainter.h"

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/// A pool of painters, so that the outlines that they keep are reused by any thread.
class ScenePainters
{
public:
    using Loan = std::unique_ptr<ScenePainter, std::function<void(ScenePainter*)>>;

    /// Borrows a painter, which returns to the pool when the loan ends.
    Loan take()
    {
        const std::lock_guard lock(m_mutex);
        std::unique_ptr<ScenePainter> painter;
        if (m_idle.empty()) {
            painter = std::make_unique<ScenePainter>();
        } else {
            painter = std::move(m_idle.back());
            m_idle.pop_back();
        }
        return {painter.release(), [this](ScenePainter* used) { giveBack(used); }};
    }

private:
    void giveBack(ScenePainter* used)
    {
        const std::lock_guard lock(m_mutex);
        m_idle.emplace_back(used);
    }

    std::mutex m_mutex;
    std::vector<std::unique_ptr<ScenePainter>> m_idle;
};
