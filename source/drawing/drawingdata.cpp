#include "drawingdata.h"

#include "tagscan.h"

#include <QCoreApplication>

namespace drawing {

namespace {

constexpr int kLastColorIndex = 255;

} // namespace

void LeftOut::note(Kind kind, const QString& layer)
{
    Note& note = m_notes[kind];
    if (note.layer.isEmpty())
        note.layer = layer;
    else
        note.more = note.more || note.layer != layer;
}

QStringList LeftOut::sentences() const
{
    constexpr const char* kTexts[] = {
        "此图形的 DXF 版本不能保存打印开关：图层“%1”%2的该设置未改动。",
        "此图形的 DXF 版本不能保存线宽：图层“%1”%2的该设置未改动。",
        "此图形的 DXF 版本不能保存真彩色：图层“%1”%2只保存了颜色索引。",
    };
    static_assert(std::size(kTexts) == KindCount);
    QStringList sentences;
    for (size_t kind = 0; kind < KindCount; ++kind) {
        const Note& note = m_notes[kind];
        if (!note.layer.isEmpty())
            sentences += QCoreApplication::translate("drawing", kTexts[kind])
                             .arg(note.layer, note.more ? QStringLiteral("等") : QString());
    }
    return sentences;
}

std::string_view DrawingData::lineAt(qint64 offset) const
{
    const char* const begin = bytes.data() + offset;
    const char* end = findLineEnd(begin, bytes.data() + bytes.size());
    if (end != begin && end[-1] == '\r')
        --end;
    return {begin, static_cast<size_t>(end - begin)};
}

void DrawingData::changeEntity(size_t entity, LayerId layer, bool removed)
{
    Entity& changed = index.entities[entity];
    entityChanges.push_back(
        {static_cast<int>(entity), {changed.layer, changed.removed}, {layer, removed}});
    changed.layer = layer;
    changed.removed = removed;
}

const ObjectPlace* DrawingData::objectByHandle(quint64 handle)
{
    if (!handles)
        handles.emplace(index.objects);
    return handles->find(handle);
}

QString DrawingData::plotStyleName(int colorIndex, quint64 handle) const
{
    if (!plotStylesByColor)
        return plotStyles.value(handle);
    // Shared by all layers of a colour.
    static const std::vector<QString> names = [] {
        std::vector<QString> made;
        for (int color = 0; color <= kLastColorIndex; ++color)
            made.push_back(QStringLiteral("Color_%1").arg(color));
        return made;
    }();
    return names.at(static_cast<size_t>(colorIndex));
}

} // namespace drawing
