#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// While it lives, writing beyond so many bytes of a file fails half-way, as it does on a full
/// disk.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_usual);
        const rlimit low{bytes, m_usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &low);
    }
    ~FileLimit() { setrlimit(RLIMIT_FSIZE, &m_usual); }
    Q_DISABLE_COPY(FileLimit)

private:
    rlimit m_usual{};
};
