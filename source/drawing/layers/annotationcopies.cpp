#include "annotationcopies.h"

#include "file/groupcode.h"
#include "file/symbolname.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr char kKey[] = "ASDK_XREC_ANNO_SCALE_INFO";
constexpr QLatin1String kMark(" @ ", 3);

} // namespace

/// The layer that the record of a copy points at, next to the scale; it may have been deleted in
/// this step.
LayerId AnnotationCopies::baseOf(quint64 record, const QHash<quint64, LayerId>& gone) const
{
    const TagList tags = m_file.objects().tags(record);
    const RecordData data(tags);
    for (int at = data.begin; at < data.end; ++at) {
        if (tags.code(at) != group::kHardPointer)
            continue;
        const Layer* layer = m_layers.byHandle(tags.handle(at));
        const LayerId base = layer ? layer->id : gone.value(tags.handle(at), LayerId::None);
        if (base != LayerId::None)
            return base;
    }
    return LayerId::None;
}

std::vector<AnnotationCopies::Copy> AnnotationCopies::copies() const
{
    QHash<quint64, LayerId> gone;
    for (const LayerChange& change : m_layers.changes()) {
        if (change.before.present && !change.after.present && change.before.handle != 0)
            gone.insert(change.before.handle, change.id);
    }
    std::vector<Copy> copies;
    for (const Layer& layer : m_layers.listed()) {
        const quint64 extension = m_layers.entry(layer.id).extension;
        const quint64 record = extension == 0 ? 0 : m_file.objects().entry(extension, kKey);
        const LayerId base = record == 0 ? LayerId::None : baseOf(record, gone);
        if (base != LayerId::None)
            copies.push_back({layer.id, base, record});
    }
    return copies;
}

std::vector<LayerId> AnnotationCopies::withCopies(const std::vector<LayerId>& layers) const
{
    std::vector<LayerId> all = layers;
    QSet<int> known;
    for (const LayerId layer : layers)
        known.insert(static_cast<int>(layer));
    for (const Copy& copy : copies()) {
        const int id = static_cast<int>(copy.layer);
        const bool goes = known.contains(static_cast<int>(copy.base)) && !known.contains(id);
        if (goes && copy.layer != m_layers.current())
            all.push_back(copy.layer);
    }
    return all;
}

void AnnotationCopies::follow()
{
    QHash<int, LayerEntry> before;
    for (const LayerChange& change : m_layers.changes()) {
        if (change.before.present)
            before.insert(static_cast<int>(change.id), change.before);
    }
    for (const Copy& copy : copies()) {
        const auto changed = before.constFind(static_cast<int>(copy.base));
        if (changed != before.constEnd())
            followBase(copy, *changed);
    }
}

void AnnotationCopies::followBase(const Copy& copy, const LayerEntry& before)
{
    LayerId id = copy.base;
    while (id != LayerId::None && !m_layers.layer(id))
        id = m_layers.entry(id).mergedInto;
    if (id == LayerId::None || id == copy.layer) {
        m_file.objects().removeEntry(m_layers.entry(copy.layer).extension, kKey);
        m_file.objects().eraseOwned(copy.record);
        return;
    }
    const LayerEntry& base = m_layers.entry(id);
    rename(copy.layer, before.layer.properties.name, base.layer.properties.name);
    pointAt(copy.record, before.handle, base.handle);
}

/// Renames a copy. When its number is in use, it gets the next free one.
void AnnotationCopies::rename(LayerId copy, const QString& oldBase, const QString& base)
{
    LayerProperties properties = m_layers.layer(copy)->properties;
    const QString& name = properties.name;
    bool isNumber = false;
    int number = name.midRef(oldBase.size() + kMark.size()).toInt(&isNumber);
    const bool isNamedAfter = isSameName(name.left(oldBase.size()), oldBase) &&
                              name.midRef(oldBase.size(), kMark.size()) == kMark && isNumber;
    if (!isNamedAfter || oldBase == base)
        return;
    const auto isTaken = [&](const QString& wanted) {
        const Layer* other = m_layers.find(wanted);
        return other && other->id != copy;
    };
    do
        properties.name = base + kMark + QString::number(number++);
    while (isTaken(properties.name));
    // A copy whose name would be too long keeps its old name. Its record still tells which layer it
    // copies.
    static_cast<void>(m_edits.setProperties(copy, properties));
}

void AnnotationCopies::pointAt(quint64 record, quint64 oldBase, quint64 base)
{
    TagList tags = m_file.objects().tags(record);
    const RecordData data(tags);
    for (int at = data.begin; at < data.end && base != oldBase; ++at) {
        if (tags.code(at) == group::kHardPointer && tags.handle(at) == oldBase)
            tags.setHandle(at, base);
    }
    m_file.objects().store(record, tags);
}

} // namespace drawing
