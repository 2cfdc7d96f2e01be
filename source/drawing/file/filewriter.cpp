#include "filewriter.h"

#include "drawingtexts.h"
#include "progress.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <algorithm>

namespace drawing {

namespace {

constexpr int kBufferSize = 1 << 18;
constexpr qint64 kChunkSize = 1 << 22;

/// Collects small pieces, writes large ones in chunks, and checks for cancellation.
class Output
{
public:
    Output(QIODevice& device, qint64 size, Progress* progress)
        : m_device(device),
          m_size(std::max<qint64>(size, 1)),
          m_progress(progress)
    {
        m_buffer.reserve(kBufferSize);
    }

    bool write(std::string_view piece)
    {
        const auto length = static_cast<qint64>(piece.size());
        if (m_buffer.size() + length <= kBufferSize) {
            m_buffer.append(piece.data(), static_cast<int>(length));
            return true;
        }
        if (!flush())
            return false;
        for (qint64 at = 0; at < length; at += kChunkSize) {
            if (!put(piece.data() + at, std::min(kChunkSize, length - at)))
                return false;
        }
        return true;
    }

    bool flush()
    {
        const bool isWritten = put(m_buffer.constData(), m_buffer.size());
        m_buffer.resize(0);
        return isWritten;
    }

private:
    bool put(const char* bytes, qint64 length)
    {
        if (m_progress && m_progress->cancelled)
            return false;
        if (length > 0 && m_device.write(bytes, length) != length)
            return false;
        m_written += length;
        if (m_progress && m_progress->report)
            m_progress->report(static_cast<int>(std::min<qint64>(100, m_written * 100 / m_size)));
        return true;
    }

    QIODevice& m_device;
    QByteArray m_buffer;
    qint64 m_size = 1;
    qint64 m_written = 0;
    Progress* m_progress = nullptr;
};

/// Why a write failed, as far as can be determined; otherwise the system's own message.
QString causeOf(const QSaveFile& file, qint64 size)
{
    const QString folder = QFileInfo(file.fileName()).absolutePath();
    const QStorageInfo storage(folder);
    const QFileInfo target(file.fileName());
    if (!QDir(folder).exists())
        return Texts::tr("文件夹不存在");
    if (storage.isReadOnly())
        return Texts::tr("磁盘是只读的");
    if (storage.bytesAvailable() >= 0 && storage.bytesAvailable() < size)
        return Texts::tr("磁盘空间不足");
    if (!QFileInfo(folder).isWritable())
        return Texts::tr("没有写入该文件夹的权限");
    if (target.exists() && !target.isWritable())
        return Texts::tr("文件是只读的");
    return file.errorString();
}

tl::unexpected<Error> refusal(const QString& path, const QString& cause)
{
    return drawing::refusal(Texts::tr("无法保存文件“%1”：%2。原文件未改动。").arg(path, cause));
}

} // namespace

Expected<void> writeFile(
    const EditJournal& journal, qint64 size, const QString& path, Progress* progress)
{
    // Replacing a device or a pipe by a file would destroy it.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return refusal(path, Texts::tr("它不是普通文件"));
    QSaveFile file(path);
    // Unbuffered, because commit() would replace the file even if writing the rest of a buffer
    // failed.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return refusal(path, causeOf(file, size));
    Output output(file, size, progress);
    const bool isWritten = journal.stream([&output](std::string_view piece) {
        return output.write(piece);
    }) && output.flush();
    if (progress && progress->cancelled) {
        file.cancelWriting();
        return tl::make_unexpected(Error{Texts::tr("已取消保存。"), 0, true});
    }
    if (!isWritten || !file.commit()) {
        const QString cause = causeOf(file, size);
        file.cancelWriting();
        return refusal(path, cause);
    }
    return {};
}

} // namespace drawing
