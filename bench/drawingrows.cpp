#include "drawing.h"
#include "drawingfile.h"
#include "file/tagreader.h"
#include "file/tagstyle.h"
#include "rows.h"
#include "stopwatch.h"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstring>

#include <unistd.h>

namespace bench {

namespace {

constexpr int kMegabytes = 20;

/// The path of the generated drawing; empty when it could not be written.
QString drawingIn(const QString& folder)
{
    const QString path = folder + QStringLiteral("/drawing.dxf");
    return QFile::exists(path) || writeDrawing(path, kMegabytes) ? path : QString();
}

/// The path of the same drawing as a binary file.
QString binaryDrawingIn(const QString& folder)
{
    using namespace drawing;
    const QString path = folder + QStringLiteral("/binary.dxf");
    QFile text(drawingIn(folder));
    if (QFile::exists(path) || !text.open(QIODevice::ReadOnly))
        return QFile::exists(path) ? path : QString();
    const QByteArray lines = text.readAll();
    TagStyle style;
    style.spelling = Spelling::Binary;
    QByteArray groups = QByteArrayLiteral("Program Binary DXF\r\n\x1a\0");
    TagReader tags(lines, Spelling::Text);
    for (Tag tag; tags.next(tag);)
        groups += style.tag(tag.code, bytesOf(tag.text()));
    QFile binary(path);
    const bool isWritten =
        binary.open(QIODevice::WriteOnly) && binary.write(groups) == groups.size();
    return isWritten ? path : QString();
}

tl::unexpected<QString> noDrawing(const QString& folder)
{
    return tl::make_unexpected(QStringLiteral("no drawing could be written in %1").arg(folder));
}

tl::expected<double, QString> openSeconds(const QString& path)
{
    drawing::Expected<std::unique_ptr<drawing::Drawing>> opened;
    const double seconds = timed(Clock::Processor, [&] { opened = drawing::Drawing::open(path); });
    if (!opened)
        return tl::make_unexpected(opened.error().text);
    return seconds;
}

using Counter = qint64 (*)(const char* bytes, qint64 size);

qint64 countByStandardLibrary(const char* bytes, qint64 size)
{
    return std::count(bytes, bytes + size, '\n');
}

qint64 countByMemchr(const char* bytes, qint64 size)
{
    qint64 count = 0;
    const char* const end = bytes + size;
    while (const void* hit = std::memchr(bytes, '\n', static_cast<std::size_t>(end - bytes))) {
        ++count;
        bytes = static_cast<const char*>(hit) + 1;
    }
    return count;
}

/// Maps the file and counts its line ends. The file is mapped again each time, as it is when
/// opening.
double countSeconds(const QString& path, Counter counter)
{
    qint64 count = 0;
    const double seconds = timed(Clock::Processor, [&] {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        const auto* const bytes = reinterpret_cast<const char*>(file.map(0, file.size()));
        count = bytes ? counter(bytes, file.size()) : 0;
    });
    return count > 0 ? seconds : 0;
}

struct LineEndCounter
{
    Counter count;
    const char* name;
};

/// The faster of the two ways of counting on this machine and with this file.
LineEndCounter fasterCounter(const QString& path)
{
    constexpr LineEndCounter kCounters[] = {
        {countByStandardLibrary, "counting its line ends by std::count, the faster way"},
        {countByMemchr, "counting its line ends by memchr, the faster way"},
    };
    double best[std::size(kCounters)] = {1e9, 1e9};
    for (int round = 0; round < 5; ++round) {
        for (std::size_t i = 0; i < std::size(kCounters); ++i)
            best[i] = std::min(best[i], countSeconds(path, kCounters[i].count));
    }
    return kCounters[best[0] <= best[1] ? 0 : 1];
}

/// Compares opening `path` with counting the line ends of the text drawing.
tl::expected<Sides, QString> openAgainstCount(const QString& folder, const QString& path)
{
    const QString text = drawingIn(folder);
    if (path.isEmpty() || text.isEmpty())
        return noDrawing(folder);
    if (const auto opened = openSeconds(path); !opened)
        return tl::make_unexpected(opened.error());
    const LineEndCounter counter = fasterCounter(text);
    return Sides{[path] { return *openSeconds(path); },
        [text, counter] { return countSeconds(text, counter.count); },
        QString::fromUtf8(counter.name)};
}

tl::expected<Sides, QString> openAgainstReader(const QString& folder)
{
    const QString path = drawingIn(folder);
    if (path.isEmpty())
        return noDrawing(folder);
    if (const auto opened = openSeconds(path); !opened)
        return tl::make_unexpected(opened.error());
    return Sides{[path] { return *openSeconds(path); },
        [path] {
            return timed(Clock::Processor, [&] {
                DL_CreationAdapter keepsNothing;
                DL_Dxf().in(path.toStdString(), &keepsNothing);
            });
        },
        QStringLiteral("dxflib, keeping nothing")};
}

/// The seconds of processor time that ezdxf takes to read the drawing, without the start of Python.
/// 0 when ezdxf is not installed or cannot read the drawing.
double ezdxfSeconds(const QString& path)
{
    const QString script = QStringLiteral("import sys, time, ezdxf\n"
                                          "begin = time.process_time()\n"
                                          "ezdxf.readfile(sys.argv[1])\n"
                                          "print(time.process_time() - begin)\n");
    QProcess python;
    // Debian's own Python has the package, whichever Python is first in the path.
    python.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), script, path});
    return python.waitForFinished(-1) ? python.readAllStandardOutput().trimmed().toDouble() : 0;
}

tl::expected<Sides, QString> openAgainstEzdxf(const QString& folder)
{
    const QString path = drawingIn(folder);
    if (path.isEmpty())
        return noDrawing(folder);
    if (const auto opened = openSeconds(path); !opened)
        return tl::make_unexpected(opened.error());
    if (ezdxfSeconds(path) <= 0)
        return tl::make_unexpected(QStringLiteral("python3-ezdxf cannot read the drawing"));
    return Sides{[path] { return *openSeconds(path); }, [path] { return ezdxfSeconds(path); },
        QStringLiteral("python3-ezdxf")};
}

/// Copies a file and waits until the copy is on the disk, as saving does.
double copySeconds(const QString& from, const QString& to)
{
    QFile::remove(to);
    return timed(Clock::Wall, [&] {
        QFile::copy(from, to);
        QFile copy(to);
        if (copy.open(QIODevice::ReadWrite))
            fsync(copy.handle());
    });
}

/// Saves an open drawing repeatedly and changes one layer each time.
class Saver
{
public:
    static tl::expected<std::shared_ptr<Saver>, QString> open(const QString& path)
    {
        auto opened = drawing::Drawing::open(path);
        if (!opened)
            return tl::make_unexpected(opened.error().text);
        return std::make_shared<Saver>(std::move(*opened));
    }
    explicit Saver(std::unique_ptr<drawing::Drawing> opened) : m_drawing(std::move(opened)) {}

    /// The seconds of one save; 0 when the change or the save was refused.
    double save()
    {
        const drawing::Layer layer = m_drawing->layers().back();
        drawing::LayerProperties changed = layer.properties;
        changed.off = !changed.off;
        m_drawing->beginStep(QStringLiteral("off"));
        const bool isChanged = m_drawing->setLayerProperties(layer.id, changed).has_value();
        m_drawing->commitStep();
        bool isSaved = false;
        const double seconds =
            timed(Clock::Wall, [&] { isSaved = m_drawing->save(m_drawing->path()).has_value(); });
        return isChanged && isSaved ? seconds : 0;
    }

private:
    std::unique_ptr<drawing::Drawing> m_drawing;
};

tl::expected<Sides, QString> saveAgainstCopy(const QString& folder)
{
    const QString original = drawingIn(folder);
    const QString path = folder + QStringLiteral("/saved.dxf");
    const QString copied = folder + QStringLiteral("/copied.dxf");
    QFile::remove(path);
    if (original.isEmpty() || !QFile::copy(original, path))
        return noDrawing(folder);
    const auto opened = Saver::open(path);
    if (!opened)
        return tl::make_unexpected(opened.error());
    if ((*opened)->save() <= 0)
        return tl::make_unexpected(QStringLiteral("the drawing could not be saved"));
    return Sides{[saver = *opened] { return saver->save(); },
        [original, copied] { return copySeconds(original, copied); },
        QStringLiteral("QFile::copy, then fsync")};
}

} // namespace

std::vector<Row> drawingRows(const QString& folder)
{
    using Kind = Budget::Kind;
    return {
        {"open/line_ends", QStringLiteral("open a drawing of 20 MB"), Measure::Processor,
            {Kind::AtMostTimes, 6}, 31, 7,
            [folder] { return openAgainstCount(folder, drawingIn(folder)); }},
        {"open/binary", QStringLiteral("open the same drawing in binary"), Measure::Processor,
            {Kind::AtMostTimes, 6}, 31, 7,
            [folder] { return openAgainstCount(folder, binaryDrawingIn(folder)); }},
        {"open/dxflib", QStringLiteral("open a drawing of 20 MB"), Measure::Processor, {}, 5, 2,
            [folder] { return openAgainstReader(folder); }},
        {"open/ezdxf", QStringLiteral("open a drawing of 20 MB"), Measure::Processor, {}, 3, 1,
            [folder] { return openAgainstEzdxf(folder); }},
        {"save/copy", QStringLiteral("save it after one layer changed"), Measure::Wall,
            {Kind::AtMostTimes, 2}, 31, 7, [folder] { return saveAgainstCopy(folder); }},
    };
}

} // namespace bench
