#include "drawingdata.h"

#include "drawingtexts.h"

namespace drawing {

namespace {

constexpr int kLastColorIndex = 255;

} // namespace

void LeftOut::note(Kind kind, const QString& name)
{
    Note& note = m_notes[kind];
    if (note.name.isEmpty())
        note.name = name;
    else
        note.more = note.more || note.name != name;
}

QStringList LeftOut::sentences() const
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
    };
    static_assert(std::size(kTexts) == KindCount);
    QStringList sentences;
    for (size_t kind = 0; kind < KindCount; ++kind) {
        const Note& note = m_notes[kind];
        if (!note.name.isEmpty())
            sentences +=
                Texts::tr(kTexts[kind]).arg(note.name, note.more ? Texts::tr("等") : QString());
    }
    return sentences;
}

TagReader DrawingData::allTags() const
{
    return TagReader(bytes.substr(firstTag), static_cast<qint64>(firstTag), spelling);
}

ByteRange DrawingData::valueRange(qint64 offset) const
{
    return {offset,
        valueEnd(bytes.data() + offset, bytes.data() + bytes.size(), spelling) - bytes.data()};
}

void DrawingData::changeEntity(size_t entity, LayerId layer, bool removed)
{
    Entity& changed = index.entities[entity];
    const bool byLayer = changed.colorByLayer;
    entityChanges.push_back({static_cast<int>(entity), {changed.layer, changed.removed, byLayer},
        {layer, removed, byLayer}});
    changed.layer = layer;
    changed.removed = removed;
}

void DrawingData::dropColor(size_t entity)
{
    Entity& changed = index.entities[entity];
    if (changed.colorByLayer)
        return;
    const EntityChange::State before{changed.layer, changed.removed, false};
    entityChanges.push_back(
        {static_cast<int>(entity), before, {changed.layer, changed.removed, true}});
    changed.colorByLayer = true;
}

QString DrawingData::linetypeName(const QString& key) const
{
    const auto known = linetypes.constFind(key);
    if (known != linetypes.constEnd())
        return known->name;
    const LinetypePointer added = state.newLinetypes.value(key);
    return added ? added->name : QString();
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
