#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// A pool with one thread per processor, which runs tasks in their order. The threads are started
/// with the first task. It uses only the standard library so that the thread sanitizer understands
/// how data is passed between threads.
class Crew
{
public:
    Crew() = default;
    ~Crew(); ///< Waits until all tasks are done.
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    static int size(); ///< The number of threads in every crew.
    void start(std::function<void()> task);
    /// Waits until no task is queued or running.
    void waitForDone();

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_hasTask;
    std::condition_variable m_isIdle;
    std::deque<std::function<void()>> m_tasks;
    std::vector<std::thread> m_threads;
    int m_busy = 0; ///< The number of threads that run a task.
    bool m_isOver = false;
};
