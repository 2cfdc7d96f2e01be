#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// As many threads as there are processors, which take tasks in their order. They are started with
/// the first task. Made of the language's own parts, so that the thread sanitizer sees what is
/// handed over.
class Crew
{
public:
    Crew() = default;
    ~Crew(); ///< Waits until all is done.
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    static int size(); ///< Of every crew.
    void start(std::function<void()> task);
    /// Returns when no task is left or under way.
    void waitForDone();

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_hasTask;
    std::condition_variable m_isIdle;
    std::deque<std::function<void()>> m_tasks;
    std::vector<std::thread> m_threads;
    int m_busy = 0; ///< Threads with a task.
    bool m_isOver = false;
};
