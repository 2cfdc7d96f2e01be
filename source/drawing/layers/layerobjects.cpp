#include "layerobjects.h"

#include "file/groupcode.h"
#include "file/owntags.h"
#include "file/symbolname.h"
#include "layerfilters.h"
#include "savedfilters.h"

#include <unordered_set>

namespace drawing {

namespace {

// Groups of LAYER_INDEX and of filters.
constexpr int kEntityCount = 90;
constexpr int kText = 1; ///< In filters: the kind, or the name and patterns.
constexpr int kExpression = 301;

/// A layer in a list or index; its tags reach from its name to the next.
struct ListedLayer
{
    int begin = 0;
    int end = 0;
    QString key;
    int buffer = TagList::kNone; ///< The tag that owns the index of the layer's entities.
    int count = TagList::kNone;
};

std::vector<ListedLayer> listedLayers(const TagList& tags, const TextCodec& codec)
{
    std::vector<ListedLayer> listed;
    for (int at = 0; at < tags.size(); ++at) {
        const int code = tags.code(at);
        if (code == group::kSubclass || code >= group::kXdata)
            continue;
        if (code == group::kLayer)
            listed.push_back({at, at + 1, foldedName(codec.decode(tags.trimmed(at)))});
        if (listed.empty() || (listed.back().end != at && code != group::kLayer))
            continue;
        ListedLayer& layer = listed.back();
        layer.end = at + 1;
        if (code == group::kHardOwner)
            layer.buffer = at;
        else if (code == kEntityCount)
            layer.count = at;
    }
    return listed;
}

/// Records deleted and renamed layers that these tags still mention.
void noteMentions(const DrawingFile& file, const TagList& tags,
    const LayerReplacements& replacements, LeftOut& leftOut)
{
    const auto isText = [](int code) {
        return (code >= 1 && code <= 9 && code != group::kHandle) || (code >= 300 && code <= 309) ||
               code == group::kXdata;
    };
    for (int at = RecordData(tags).begin; at < tags.size(); ++at) {
        if (group::isPointer(tags.code(at)) && replacements.isRemovedHandle(tags.handle(at)))
            leftOut.note(LeftOut::Opaque, replacements.removedName(tags.handle(at)));
        if (!isText(tags.code(at)))
            continue;
        const QString text = file.decoded(tags.trimmed(at));
        if (replacements.isRemoved(text) || !replacements.newName(text).isNull())
            leftOut.note(LeftOut::Opaque, text);
    }
}

} // namespace

QSet<quint64> LayerObjects::follow(const LayerReplacements& replacements)
{
    for (const ObjectPlace& object : m_file.index().objects) {
        if (object.kind == ObjectKind::LayerList)
            rewrite(object.handle, [&](TagList& tags) { followList(tags, replacements); });
        if (object.kind == ObjectKind::Section)
            rewrite(object.handle, [&](TagList& tags) { followSection(tags, replacements); });
    }
    for (const LayerEntry& removed : replacements.removed())
        m_file.objects().eraseOwned(removed.extension);
    return followFilters(replacements);
}

void LayerObjects::rewrite(quint64 handle, const std::function<void(TagList&)>& change)
{
    TagList tags = m_file.objects().tags(handle);
    const QByteArray before = tags.bytes();
    change(tags);
    const QByteArray after = tags.bytes();
    if (after != before)
        m_file.objects().store(handle, after);
}

void LayerObjects::setText(TagList& tags, int at, const QString& text) const
{
    if (text != m_file.decoded(tags.text(at)))
        tags.setText(at, m_file.encoded(text));
}

/// Updates a list or index. The layer that a deleted one was merged into takes its place. If that
/// layer is already listed, its index takes over the entities of the other one.
void LayerObjects::followList(TagList& tags, const LayerReplacements& replacements)
{
    const std::vector<ListedLayer> listed = listedLayers(tags, m_file.codec());
    QHash<QString, const ListedLayer*> byName;
    for (const ListedLayer& layer : listed)
        byName.insert(layer.key, &layer);
    std::vector<char> isDropped(static_cast<size_t>(tags.size()));
    for (const ListedLayer& layer : listed) {
        if (const QString name = replacements.newName(layer.key); !name.isNull()) {
            setText(tags, layer.begin, name);
            continue;
        }
        if (!replacements.isRemoved(layer.key))
            continue;
        const QString target = replacements.mergeTarget(layer.key);
        const ListedLayer* const other = byName.value(foldedName(target));
        if (!target.isNull() && !other) {
            setText(tags, layer.begin, target);
            byName.insert(foldedName(target), &layer);
            continue;
        }
        if (other && layer.buffer != TagList::kNone && other->buffer != TagList::kNone)
            joinBuffers(tags.handle(layer.buffer), tags.handle(other->buffer));
        if (other && layer.count != TagList::kNone && other->count != TagList::kNone)
            tags.setInteger(other->count, tags.integer(other->count) + tags.integer(layer.count));
        if (layer.buffer != TagList::kNone)
            m_file.objects().eraseOwned(tags.handle(layer.buffer));
        std::fill(isDropped.begin() + layer.begin, isDropped.begin() + layer.end, true);
    }
    std::vector<int> kept;
    for (int at = 0; at < tags.size(); ++at) {
        if (!isDropped[static_cast<size_t>(at)])
            kept.push_back(at);
    }
    tags.keepOnly(kept);
}

/// Updates the layers that a section puts its outlines on. What was deleted falls to layer 0.
void LayerObjects::followSection(TagList& tags, const LayerReplacements& replacements) const
{
    const RecordData data(tags);
    for (int at = data.begin; at < data.end; ++at) {
        if (tags.code(at) != group::kLayer)
            continue;
        const QString name = m_file.decoded(tags.trimmed(at));
        const QString now = replacements.currentName(name);
        if (!now.isNull() || replacements.isRemoved(name))
            setText(tags, at, now.isNull() ? QStringLiteral("0") : now);
    }
}

/// Appends the handles in one entity index to another.
void LayerObjects::joinBuffers(quint64 from, quint64 to)
{
    const TagList source = m_file.objects().tags(from);
    rewrite(to, [&source](TagList& target) {
        int at = target.find(group::kApplication, 0, target.size());
        at = at == TagList::kNone ? target.size() : at;
        const int data = source.find(group::kSubclass, 0, source.size());
        for (int i = data + 1; data != TagList::kNone && i < source.size(); ++i) {
            if (source.code(i) == group::kSoftPointer)
                target.insert(at++, target.style().handle(group::kSoftPointer, source.handle(i)));
        }
    });
}

QSet<quint64> LayerObjects::followFilters(const LayerReplacements& replacements)
{
    const Objects& objects = m_file.objects();
    QSet<quint64> seen;
    for (const Dictionary::Entry& entry : objects.dictionary(oldFilterList(m_file)).entries()) {
        if (objects.kind(entry.object) != ObjectKind::XRecord)
            continue;
        rewrite(entry.object, [&](TagList& tags) { followOldFilter(tags, replacements); });
        seen.insert(entry.object);
    }
    for (const FilterPlace& place : filterPlaces(m_file)) {
        rewrite(place.record, [&](TagList& tags) { followFilter(tags, replacements); });
        seen.insert(place.record);
    }
    return seen;
}

/// Updates a filter of the older kind: its own name, then the pattern of layer names. An expression
/// is in its extended data.
void LayerObjects::followOldFilter(TagList& tags, const LayerReplacements& replacements) const
{
    const RecordData data(tags);
    const int own = tags.find(kText, data.begin, data.end);
    const int pattern = own == TagList::kNone ? own : tags.find(kText, own + 1, data.end);
    if (pattern != TagList::kNone)
        setText(tags, pattern, followedPattern(m_file.decoded(tags.text(pattern)), replacements));
    for (int at = data.end; at < tags.size(); ++at) {
        if (tags.code(at) == group::kXdata)
            setText(tags, at, followedExpression(m_file.decoded(tags.text(at)), replacements));
    }
}

/// Updates a filter of the newer kind: a group lists handles, and a property filter compares names
/// in its expression.
void LayerObjects::followFilter(TagList& tags, const LayerReplacements& replacements) const
{
    const RecordData data(tags);
    std::unordered_set<quint64> listed;
    for (int at = data.begin; at < data.end; ++at) {
        if (tags.code(at) == group::kSoftPointer)
            listed.insert(tags.handle(at));
    }
    std::vector<int> kept;
    for (int at = 0; at < tags.size(); ++at) {
        if (data.contains(at) && tags.code(at) == kExpression)
            setText(tags, at, followedExpression(m_file.decoded(tags.text(at)), replacements));
        const bool isLayer = data.contains(at) && tags.code(at) == group::kSoftPointer;
        if (isLayer && replacements.isRemovedHandle(tags.handle(at))) {
            const quint64 target = replacements.mergeTargetHandle(tags.handle(at));
            if (target == 0 || !listed.insert(target).second)
                continue;
            tags.setHandle(at, target);
        }
        kept.push_back(at);
    }
    tags.keepOnly(kept);
}

void noteOpaque(const DrawingFile& file, const EntityTable& entities,
    const LayerReplacements& replacements, const QSet<quint64>& understood, LeftOut& leftOut)
{
    for (const ObjectPlace& object : file.index().objects) {
        const bool isOpaque =
            object.kind == ObjectKind::XRecord || object.kind == ObjectKind::Proxy;
        if (isOpaque && !understood.contains(object.handle))
            noteMentions(file, file.current(object.range), replacements, leftOut);
    }
    for (const Entity& entity : entities.all()) {
        if (entity.kind != EntityKind::Proxy || entity.removed)
            continue;
        TagList tags = file.current(entity.range());
        if (const int own = tags.find(group::kLayer, 0, tags.size()); own != TagList::kNone)
            tags.remove(own, own + 1);
        noteMentions(file, tags, replacements, leftOut);
    }
}

} // namespace drawing
