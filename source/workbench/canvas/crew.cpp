#include "crew.h"

#include <algorithm>
#include <utility>

Crew::~Crew()
{
    waitForDone();
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_hasTask.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
}

int Crew::size()
{
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

void Crew::start(std::function<void()> task)
{
    const std::lock_guard lock(m_mutex);
    m_tasks.push_back(std::move(task));
    while (m_threads.size() < static_cast<std::size_t>(size()))
        m_threads.emplace_back([this] { work(); });
    m_hasTask.notify_one();
}

void Crew::waitForDone()
{
    std::unique_lock lock(m_mutex);
    m_isIdle.wait(lock, [this] { return m_tasks.empty() && m_busy == 0; });
}

void Crew::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_hasTask.wait(lock, [this] { return m_isOver || !m_tasks.empty(); });
        if (m_tasks.empty())
            return;
        std::function<void()> task = std::move(m_tasks.front());
        m_tasks.pop_front();
        ++m_busy;
        lock.unlock();
        task();
        task = nullptr; // Destroys what the task holds before it counts as done.
        lock.lock();
        --m_busy;
        if (m_tasks.empty() && m_busy == 0)
            m_isIdle.notify_all();
    }
}
