#include "folderlock.h"

#include "journal.h"
#include "texts.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace layertool {

namespace {

using drawing::Error;
using drawing::Expected;

tl::unexpected<Error> inUse(const QString& folder)
{
    return tl::make_unexpected(Error{
        Texts::tr("输出文件夹“%1”正被另一次运行使用：请等它结束，或用 --wait 等待。").arg(folder)});
}

/// A killed run holds its lock until its worker processes have ended as well.
constexpr int kGraceMilliseconds = 1000;
constexpr useconds_t kPollMicroseconds = 50000;

/// Worker processes inherit the lock, because they may still move files into place.
int openLock(const QString& folder, const QString& name)
{
    const QString path = QDir(Journal::folderOf(folder)).filePath(name);
    return ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT, 0666);
}

bool lock(int file, int kind, bool waits)
{
    int done = -1;
    do {
        done = ::flock(file, kind | (waits ? 0 : LOCK_NB));
    } while (done != 0 && errno == EINTR);
    return done == 0;
}

/// Removes files that killed runs did not move into place. No other run is active at this point.
void removeLeftBehind(const QString& folder)
{
    for (const QString& name : QDir(folder).entryList({QStringLiteral("staging-*")}, QDir::Dirs))
        QDir(QDir(folder).filePath(name)).removeRecursively();
}

int readCount(int file)
{
    char text[16] = {};
    return ::pread(file, text, sizeof text - 1, 0) > 0 ? QByteArray(text).toInt() : 0;
}

bool writeCount(int file, int count)
{
    const QByteArray text = QByteArray::number(count);
    return ::ftruncate(file, 0) == 0 &&
           ::pwrite(file, text.constData(), static_cast<size_t>(text.size()), 0) == text.size();
}

} // namespace

Expected<std::unique_ptr<FolderLock>> FolderLock::take(
    const QString& outFolder, const Shard& shard, bool waits)
{
    std::unique_ptr<FolderLock> lock(new FolderLock);
    auto done = lock->lockFolder(outFolder, shard, waits);
    if (done)
        done = lock->lockShard(outFolder, shard, waits);
    if (!done)
        return tl::make_unexpected(done.error());
    return lock;
}

/// Whoever gets the folder exclusively records the number of shards. Shards of the same division
/// then share the lock.
Expected<void> FolderLock::lockFolder(const QString& folder, const Shard& shard, bool waits)
{
    m_folder = openLock(folder, QStringLiteral("lock"));
    if (m_folder < 0)
        return tl::make_unexpected(Error{Texts::tr("无法在输出文件夹“%1”中写日志。").arg(folder)});
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        if (lock(m_folder, LOCK_EX, false)) {
            removeLeftBehind(Journal::folderOf(folder));
            if (!writeCount(m_folder, shard.count))
                return tl::make_unexpected(
                    Error{Texts::tr("无法在输出文件夹“%1”中写日志。").arg(folder)});
            if (shard.count == 1)
                return {};
            // While the lock is being converted to a shared one, a run with another division may
            // get it.
            lock(m_folder, LOCK_UN, true);
        }
        if (shard.count > 1 && lock(m_folder, LOCK_SH, false)) {
            if (readCount(m_folder) == shard.count)
                return {};
            lock(m_folder, LOCK_UN, true);
        }
        if (!waits && clock.elapsed() > kGraceMilliseconds)
            return inUse(folder);
        ::usleep(kPollMicroseconds);
    }
}

Expected<void> FolderLock::lockShard(const QString& folder, const Shard& shard, bool waits)
{
    if (shard.count == 1)
        return {};
    m_shard = openLock(folder, QStringLiteral("lock-%1").arg(shard.number));
    QElapsedTimer clock;
    clock.start();
    while (m_shard < 0 || !lock(m_shard, LOCK_EX, waits)) {
        if (m_shard < 0 || clock.elapsed() > kGraceMilliseconds)
            return inUse(folder);
        ::usleep(kPollMicroseconds);
    }
    return {};
}

FolderLock::~FolderLock()
{
    // Closing a file releases its lock, and so does killing the process.
    for (const int file : {m_shard, m_folder}) {
        if (file >= 0)
            ::close(file);
    }
}

} // namespace layertool
