#include "layerstatefile.h"

#include "file/drawingtexts.h"
#include "file/symbolname.h"
#include "file/tagreader.h"
#include "layerstatetags.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

namespace drawing {

namespace {

constexpr std::string_view kHead = "LAYERSTATEDICTIONARY";
constexpr std::string_view kState = "LAYERSTATE";
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr int kFilePlotStyleCode = 2;

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

/// The most likely encoding of the bytes. Text that is valid in a double-byte code page is hardly
/// so by chance; single-byte code pages accept nearly everything.
TextCodec codecOf(std::string_view bytes, const TextCodec& own)
{
    const TextCodec utf8 = TextCodec::utf8();
    const TextCodec gbk("AC1018", "ANSI_936");
    if (utf8.canDecode(bytes))
        return utf8.forNewFile();
    if (own.isDoubleByte() && own.canDecode(bytes))
        return own.forNewFile();
    return (gbk.canDecode(bytes) || own == utf8 ? gbk : own).forNewFile();
}

std::string_view withoutMark(std::string_view bytes)
{
    return bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark
               ? bytes.substr(kByteOrderMark.size())
               : bytes;
}

bool startsAsStates(std::string_view bytes)
{
    TagReader tags(withoutMark(bytes));
    Tag tag;
    return tags.next(tag) && tag.code == 0 && tag.trimmed() == kHead;
}

class FileReader
{
public:
    FileReader(std::string_view bytes, const TextCodec& codec) : m_bytes(bytes), m_codec(codec) {}
    /// Returns the offset of a line that should be a group code and is not; -1 when everything is
    /// fine.
    qint64 run();
    LayerStateFile& file() { return m_file; }

private:
    void close(LayerStateReader& reader);
    void noteUnused(const LayerStateUnused& unused);

    std::string_view m_bytes;
    const TextCodec& m_codec;
    LayerStateFile m_file;
    bool m_isOpen = false;
};

qint64 FileReader::run()
{
    LayerStateReader reader(m_codec, {});
    TagReader tags(m_bytes);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 0) {
            close(reader);
            m_isOpen = tag.trimmed() == kState;
        } else if (m_isOpen) {
            reader.take(tag);
        }
    }
    if (tags.broken()) {
        if (!tags.isCutOff())
            return tags.offset();
        reader.dropOpenLayer();
    }
    const int whole = static_cast<int>(m_file.states.size());
    close(reader);
    noteUnused(reader.unused());
    if (tags.broken()) {
        const bool hasLast = static_cast<int>(m_file.states.size()) > whole;
        m_file.notices += hasLast
                              ? Texts::tr("文件不完整：在图层状态“%1”中中断，其后的内容没有读入。")
                                    .arg(m_file.states.back().name)
                              : Texts::tr("文件不完整：末尾的内容没有读入。");
    }
    return -1;
}

void FileReader::noteUnused(const LayerStateUnused& unused)
{
    constexpr size_t kMost = 8;
    QStringList codes;
    for (auto at = unused.codes.begin(); at != unused.codes.end() && codes.size() < int(kMost);
         ++at)
        codes += QString::number(*at);
    if (!codes.isEmpty())
        m_file.notices += Texts::tr("不认识的组码 %1%2，已跳过。")
                              .arg(codes.join(Texts::tr("、")),
                                  unused.codes.size() > kMost ? Texts::tr("等") : QString());
    if (unused.maskBits != 0)
        m_file.notices += Texts::tr("恢复掩码中不认识的位 %1，已忽略。").arg(unused.maskBits);
    if (unused.values > 0)
        m_file.notices +=
            Texts::tr("%1 个颜色或线宽的值不存在，图层的该项用默认值代替。").arg(unused.values);
}

void FileReader::close(LayerStateReader& reader)
{
    LayerState state = reader.finish();
    if (!m_isOpen)
        return;
    state.name = state.name.trimmed();
    if (vnsi::nameFaults(state.name) & (vnsi::NameFault::Empty | vnsi::NameFault::TooLong))
        m_file.notices += Texts::tr("一个图层状态没有可用的名称，没有读入。");
    else
        m_file.states.push_back(std::move(state));
}

} // namespace

bool isLayerStateFile(const QString& path)
{
    constexpr qint64 kSample = 256;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(kSample);
    return startsAsStates({head.constData(), static_cast<size_t>(head.size())});
}

Expected<LayerStateFile> readLayerStateFile(const QString& path, const TextCodec& fallback)
{
    const auto refusal = [&path](const QString& cause, qint64 line = 0) {
        return tl::make_unexpected(Error{
            Texts::tr("无法读取图层状态文件“%1”：%2。").arg(shown(path), cause), line, false});
    };
    QFile file(path);
    if (!file.exists())
        return LayerStateFile();
    if (!file.open(QIODevice::ReadOnly))
        return refusal(file.errorString());
    const uchar* mapped = file.size() > 0 ? file.map(0, file.size()) : nullptr;
    if (!mapped)
        return refusal(file.size() > 0 ? file.errorString() : Texts::tr("它是空的"));
    const std::string_view all(
        reinterpret_cast<const char*>(mapped), static_cast<size_t>(file.size()));
    if (!startsAsStates(all))
        return refusal(Texts::tr("第 1 行不是图层状态文件的开头"), 1);
    const std::string_view bytes = withoutMark(all);
    const TextCodec codec = codecOf(bytes, fallback);
    FileReader reader(bytes, codec);
    const qint64 fault = reader.run();
    if (fault >= 0) {
        const qint64 line = 1 + std::count(bytes.begin(), bytes.begin() + fault, '\n');
        return refusal(Texts::tr("第 %1 行的组码不是数字").arg(line), line);
    }
    LayerStateFile read = std::move(reader.file());
    if (!(codec == TextCodec::utf8()))
        read.notices.prepend(Texts::tr("文件“%1”的文字不是 UTF-8 编码，已按 %2 读取。")
                                 .arg(shown(path), codec.title()));
    return read;
}

Expected<void> writeLayerStateFile(const QString& path, const std::vector<LayerState>& states)
{
    const auto refused = [&path](const QString& cause) {
        return refusal(Texts::tr("无法写入图层状态文件“%1”：%2。").arg(shown(path), cause));
    };
    const TextCodec utf8 = TextCodec::utf8().forNewFile();
    TagStyle style;
    style.lineEnd = "\r\n";
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return refused(file.errorString());
    file.write(style.tag(0, "LAYERSTATEDICTIONARY"));
    for (const LayerState& state : states) {
        file.write(style.tag(0, "LAYERSTATE") + style.tag(1, utf8.encode(state.name)));
        file.write(layerStateTags(state, {}, kFilePlotStyleCode, style, utf8));
    }
    if (!file.commit())
        return refused(file.errorString());
    return {};
}

} // namespace drawing
