#include "leftout.h"

#include "file/drawingtexts.h"

#include <utility>

namespace drawing {

void LeftOut::note(Kind kind, const QString& name)
{
    Note& note = m_notes[kind];
    if (note.name.isEmpty())
        note.name = name;
    else
        note.more = note.more || note.name != name;
}

QStringList LeftOut::take()
{
    constexpr const char* kTexts[] = {
        QT_TRANSLATE_NOOP(
            "drawing", "此图形的 DXF 版本不能保存打印开关：图层“%1”%2的该设置未改动。"),
        QT_TRANSLATE_NOOP("drawing", "此图形的 DXF 版本不能保存线宽：图层“%1”%2的该设置未改动。"),
        QT_TRANSLATE_NOOP(
            "drawing", "此图形的 DXF 版本不能保存真彩色：图层“%1”%2只保存了颜色索引。"),
        QT_TRANSLATE_NOOP(
            "drawing", "此图形的 DXF 版本不能保存线型中的文字和形：线型“%1”%2只保存了划线和间隔。"),
        QT_TRANSLATE_NOOP("drawing",
            "线型“%1”%2所用的文字样式或形文件在其来源图形中找不到：只保存了划线和间隔。"),
        // In two pieces for its length. NOLINTNEXTLINE(bugprone-suspicious-missing-comma)
        QT_TRANSLATE_NOOP("drawing", "图形中有本程序读不懂的自定义对象，其中提到图层“%1”%2："
                                     "这些数据原样保留，没有随之改动。"),
    };
    static_assert(std::size(kTexts) == KindCount);
    QStringList sentences;
    for (size_t kind = 0; kind < KindCount; ++kind) {
        const Note note = std::exchange(m_notes[kind], {});
        if (!note.name.isEmpty())
            sentences +=
                Texts::tr(kTexts[kind]).arg(note.name, note.more ? Texts::tr("等") : QString());
    }
    return sentences;
}

} // namespace drawing
