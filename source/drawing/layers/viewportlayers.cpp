#include "viewportlayers.h"

#include "drawingdata.h"
#include "drawingtexts.h"
#include "handles.h"
#include "layeroverrides.h"
#include "symboltables.h"
#include "taglist.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr quint32 kAddedHandles = 1; // Order of the insertion that holds them.

bool isFrozenCode(int code)
{
    return code == 331 || code == 341;
}

/// Layers by the handles of their records.
QHash<quint64, LayerId> layersByHandle(const DrawingData& data)
{
    QHash<quint64, LayerId> layers;
    layers.reserve(data.layers.entryCount());
    for (int i = 0; i < data.layers.entryCount(); ++i) {
        const LayerEntry& entry = data.layers.entry(static_cast<LayerId>(i));
        if (entry.present && entry.handle != 0)
            layers.insert(entry.handle, entry.layer.id);
    }
    return layers;
}

} // namespace

/// The tags of a viewport that list its frozen layers: those of the file, and what was added.
struct ViewportLayers::FrozenList
{
    std::vector<Tag> tags;
    std::vector<quint64> added;
    qint64 at = -1; ///< Where new ones go.
    int code = 331;
    TagStyle style;
};

ViewportLayers::FrozenList ViewportLayers::list(int viewport) const
{
    const Entity& entity = m_data.index.entities[static_cast<size_t>(viewport)];
    FrozenList list;
    list.style = m_data.styleOf(entity.range());
    list.code = m_data.limits.softPointers ? 331 : 341;
    list.at = entity.end;
    TagReader tags = m_data.tags(entity.range());
    bool isOwn = true; // Old files have no markers.
    Tag tag;
    while (tags.next(tag) && tag.code < 1000) {
        if (tag.code == 100)
            isOwn = tag.trimmed() == "AcDbViewport";
        if (!isOwn)
            continue;
        if (isFrozenCode(tag.code)) {
            list.code = tag.code;
            list.tags.push_back(tag);
        }
        if (list.at == entity.end && (isFrozenCode(tag.code) || tag.code == 90))
            list.at = tag.begin();
    }
    const TagList inserted = m_data.tagList(m_data.journal.inserted(list.at, kAddedHandles));
    for (int i = 0; i < inserted.size(); ++i)
        list.added.push_back(inserted.handle(i));
    return list;
}

void ViewportLayers::write(const FrozenList& list, const std::vector<quint64>& added)
{
    QByteArray bytes;
    for (const quint64 handle : added)
        bytes += list.style.handle(list.code, handle);
    if (!bytes.isEmpty())
        m_data.journal.insert(list.at, kAddedHandles, bytes);
    else if (!list.added.empty())
        m_data.journal.removeInsertion(list.at, kAddedHandles);
}

int ViewportLayers::current() const
{
    if (m_data.state.modelSpace)
        return -1;
    for (const int viewport : m_data.layouts[static_cast<size_t>(m_data.state.layout)].viewports) {
        if (!m_data.index.entities[static_cast<size_t>(viewport)].removed)
            return viewport;
    }
    return -1;
}

Expected<void> ViewportLayers::check() const
{
    const auto refusal = [](const QString& text) {
        return tl::make_unexpected(Error{text, 0, false});
    };
    if (!m_data.limits.markers)
        return refusal(Texts::tr("此图形的格式不能保存视口中的图层特性"));
    if (m_data.state.modelSpace)
        return refusal(Texts::tr("当前不在布局中"));
    const QString& name = m_data.layouts[static_cast<size_t>(m_data.state.layout)].name;
    if (current() < 0)
        return refusal(
            Texts::tr("布局%1中没有视口").arg(name.isEmpty() ? name : Texts::tr("“%1”").arg(name)));
    return {};
}

std::vector<LayerId> ViewportLayers::frozen() const
{
    std::vector<LayerId> frozen;
    if (!check())
        return frozen;
    const FrozenList list = this->list(current());
    std::vector<quint64> handles = list.added;
    for (const Tag& tag : list.tags) {
        if (!m_data.journal.current(tag.range()).isEmpty())
            handles.push_back(tag.handle());
    }
    if (handles.empty())
        return frozen;
    const QHash<quint64, LayerId> layers = layersByHandle(m_data);
    for (const quint64 handle : handles) {
        if (const LayerId layer = layers.value(handle, LayerId::None); layer != LayerId::None)
            frozen.push_back(layer);
    }
    std::sort(frozen.begin(), frozen.end());
    frozen.erase(std::unique(frozen.begin(), frozen.end()), frozen.end());
    return frozen;
}

Expected<void> ViewportLayers::setFrozen(const std::vector<LayerId>& layers)
{
    if (auto checked = check(); !checked)
        return checked;
    QSet<quint64> missing;
    std::vector<quint64> handles;
    for (const LayerId layer : layers) {
        LayerEntry entry = m_data.layers.entry(layer);
        if (!entry.hasRecord) {
            SymbolTables(m_data).addLayerRecord(entry);
            m_data.layers.change(layer, entry);
        }
        handles.push_back(entry.handle);
        missing.insert(entry.handle);
    }
    const FrozenList list = this->list(current());
    const QHash<quint64, LayerId> known = layersByHandle(m_data);
    for (const Tag& tag : list.tags) {
        // What is no layer of ours is not ours to drop.
        const bool isKept = missing.remove(tag.handle()) || !known.contains(tag.handle());
        if (isKept)
            m_data.journal.restore(tag.range());
        else
            m_data.journal.replace(tag.range(), {});
    }
    handles.erase(std::remove_if(handles.begin(), handles.end(),
                      [&](quint64 handle) { return !missing.contains(handle); }),
        handles.end());
    write(list, handles);
    return {};
}

Expected<std::vector<LayerId>> ViewportLayers::override(
    const std::vector<LayerInViewport>& layers, int properties)
{
    if (const auto checked = check(); !checked)
        return tl::make_unexpected(checked.error());
    const Entity& entity = m_data.index.entities[static_cast<size_t>(current())];
    const quint64 viewport = ownHandle(m_data.tags(entity.range()));
    LayerOverrides overrides(m_data);
    std::vector<LayerId> incomplete;
    for (const LayerInViewport& layer : layers) {
        if (!overrides.set(layer.layer, viewport, layer.shown, properties))
            incomplete.push_back(layer.layer);
    }
    return incomplete;
}

void ViewportLayers::forget(const QSet<quint64>& handles)
{
    for (size_t i = 0; i < m_data.index.entities.size(); ++i) {
        const Entity& entity = m_data.index.entities[i];
        if (entity.kind != EntityKind::Viewport || entity.removed)
            continue;
        const FrozenList list = this->list(static_cast<int>(i));
        for (const Tag& tag : list.tags) {
            if (handles.contains(tag.handle()))
                m_data.journal.replace(tag.range(), {});
        }
        std::vector<quint64> kept = list.added;
        kept.erase(std::remove_if(kept.begin(), kept.end(),
                       [&](quint64 handle) { return handles.contains(handle); }),
            kept.end());
        write(list, kept);
    }
}

} // namespace drawing
