#include "interruption.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace layertool {

namespace {

int g_pipe[2] = {-1, -1};
std::atomic<bool>* g_flag = nullptr;
volatile std::sig_atomic_t g_signal = 0;

void onSignal(int number)
{
    g_signal = number;
    if (g_flag)
        g_flag->store(true);
    const char byte = 0;
    // If the pipe is full, the loop has already been woken.
    if (::write(g_pipe[1], &byte, 1) < 0)
        return;
}

void handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGINT, SIGTERM})
        ::sigaction(number, &action, nullptr);
}

} // namespace

Interruption::Interruption(std::atomic<bool>* flag)
{
    static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");
    g_flag = flag;
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("no pipe");
    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (::read(g_pipe[0], bytes, sizeof bytes) > 0) {
        }
        emit interrupted();
    });
    handle(onSignal);
}

Interruption::~Interruption()
{
    handle(SIG_DFL);
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
    g_flag = nullptr;
}

int Interruption::signalNumber()
{
    return g_signal;
}

} // namespace layertool
