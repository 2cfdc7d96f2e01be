#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// While it exists, writing more than this number of bytes to a file fails half-way, as on a full
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
