#include "viewportlayers.h"

#include "file/drawingtexts.h"
#include "file/groupcode.h"
#include "file/insertionorder.h"
#include "file/owntags.h"
#include "layerreplacements.h"

#include <algorithm>

namespace drawing {

namespace {

// Group codes of the lists of frozen layers.
constexpr int kFrozenSince2004 = 331;
constexpr int kFrozenBefore2004 = 341;

bool isFrozenCode(int code)
{
    return code == kFrozenSince2004 || code == kFrozenBefore2004;
}

} // namespace

/// The tags of a viewport that list its frozen layers: those of the file and the added ones.
struct ViewportLayers::FrozenList
{
    std::vector<Tag> tags;
    std::vector<quint64> added;
    qint64 at = -1; ///< The place for new entries.
    int code = kFrozenSince2004;
    TagStyle style;
};

ViewportLayers::FrozenList ViewportLayers::list(const Entity& viewport) const
{
    constexpr int kStatus = 90;
    FrozenList list;
    list.style = m_file.styleOf(viewport.range());
    list.code = m_file.limits().softPointers ? kFrozenSince2004 : kFrozenBefore2004;
    list.at = viewport.end;
    OwnTags tags(m_file.tags(viewport.range()));
    Tag tag;
    while (tags.next(tag)) {
        const std::string_view subclass = tags.place().subclass();
        if (!subclass.empty() && subclass != "AcDbViewport")
            continue; // Old files have no subclass markers.
        if (isFrozenCode(tag.code)) {
            list.code = tag.code;
            list.tags.push_back(tag);
        }
        if (list.at == viewport.end && (isFrozenCode(tag.code) || tag.code == kStatus))
            list.at = tag.begin();
    }
    const TagList inserted = m_file.tagList(m_file.journal().inserted(list.at, kNewFrozenLayers));
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
        m_file.journal().insert(list.at, kNewFrozenLayers, bytes);
    else if (!list.added.empty())
        m_file.journal().removeInsertion(list.at, kNewFrozenLayers);
}

const Entity& ViewportLayers::current() const
{
    return m_entities[static_cast<size_t>(m_layouts.currentViewport(m_entities))];
}

Expected<void> ViewportLayers::check() const
{
    if (!m_file.limits().markers)
        return refusal(Texts::tr("此图形的格式不能保存视口中的图层特性"));
    if (m_layouts.isModelSpace())
        return refusal(Texts::tr("当前不在布局中"));
    const QString& name = m_layouts.shown().name;
    if (m_layouts.currentViewport(m_entities) < 0)
        return refusal(
            Texts::tr("布局%1中没有视口").arg(name.isEmpty() ? name : Texts::tr("“%1”").arg(name)));
    return {};
}

std::vector<LayerId> ViewportLayers::frozen() const
{
    return check() ? frozenIn(current()) : std::vector<LayerId>();
}

std::vector<LayerId> ViewportLayers::frozenIn(const Entity& viewport) const
{
    std::vector<LayerId> frozen;
    if (!m_file.limits().markers)
        return frozen;
    const FrozenList list = this->list(viewport);
    std::vector<quint64> handles = list.added;
    for (const Tag& tag : list.tags) {
        if (!m_file.journal().current(tag.range()).isEmpty())
            handles.push_back(tag.handle());
    }
    for (const quint64 handle : handles) {
        if (const Layer* layer = m_layers.byHandle(handle))
            frozen.push_back(layer->id);
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
        handles.push_back(m_records.madeHandle(layer));
        missing.insert(handles.back());
    }
    const FrozenList list = this->list(current());
    for (const Tag& tag : list.tags) {
        // Handles that do not belong to a layer of the drawing are kept.
        if (missing.remove(tag.handle()) || !m_layers.byHandle(tag.handle()))
            m_file.journal().restore(tag.range());
        else
            m_file.journal().replace(tag.range(), {});
    }
    handles.erase(std::remove_if(handles.begin(), handles.end(),
                      [&](quint64 handle) { return !missing.contains(handle); }),
        handles.end());
    write(list, handles);
    return {};
}

qint64 ViewportLayers::placeOfHandle(const Entity& viewport) const
{
    TagReader tags = m_file.tags(viewport.range());
    Tag type;
    return tags.next(type) ? type.end() : viewport.end;
}

quint64 ViewportLayers::handleOf(const Entity& viewport) const
{
    if (const quint64 known = ownHandle(m_file.tags(viewport.range())))
        return known;
    const TagList made =
        m_file.tagList(m_file.journal().inserted(placeOfHandle(viewport), kNewHandle));
    return made.size() > 0 ? made.handle(0) : 0;
}

/// The handle of a viewport; a viewport without a handle gets one.
quint64 ViewportLayers::madeHandle(const Entity& viewport)
{
    if (const quint64 known = handleOf(viewport))
        return known;
    const quint64 taken = m_file.takeHandle();
    m_file.journal().insert(placeOfHandle(viewport), kNewHandle,
        m_file.styleOf(viewport.range()).handle(group::kHandle, taken));
    return taken;
}

Expected<std::vector<LayerId>> ViewportLayers::override(
    const std::vector<LayerInViewport>& layers, int properties)
{
    if (const auto checked = check(); !checked)
        return tl::make_unexpected(checked.error());
    const quint64 viewport = madeHandle(current());
    std::vector<LayerId> incomplete;
    for (const LayerInViewport& layer : layers) {
        if (!m_overrides.set(layer.layer, viewport, layer.shown, properties))
            incomplete.push_back(layer.layer);
    }
    return incomplete;
}

std::vector<LayerInViewport> ViewportLayers::overridden() const
{
    const quint64 viewport = check() ? handleOf(current()) : 0;
    return viewport != 0 ? m_overrides.all()[viewport] : std::vector<LayerInViewport>();
}

void ViewportLayers::follow(const LayerReplacements& replacements)
{
    if (replacements.removed().empty())
        return;
    for (const Entity& entity : m_entities.all()) {
        if (entity.kind != EntityKind::Viewport || entity.removed)
            continue;
        const FrozenList list = this->list(entity);
        for (const Tag& tag : list.tags) {
            if (replacements.isRemovedHandle(tag.handle()))
                m_file.journal().replace(tag.range(), {});
        }
        std::vector<quint64> kept = list.added;
        kept.erase(std::remove_if(kept.begin(), kept.end(),
                       [&](quint64 handle) { return replacements.isRemovedHandle(handle); }),
            kept.end());
        write(list, kept);
    }
}

} // namespace drawing
