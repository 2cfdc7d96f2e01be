#include "layerreplacements.h"

#include "file/symbolname.h"

namespace drawing {

LayerReplacements::LayerReplacements(const LayerTable& layers, const TextCodec& codec)
{
    std::vector<char> changed(static_cast<size_t>(layers.entryCount()));
    std::vector<const LayerChange*> removals;
    for (const LayerChange& change : layers.changes()) {
        const QString& oldName = change.before.layer.properties.name;
        const QString& name = change.after.layer.properties.name;
        const bool isRemoved = change.before.present && !change.after.present;
        if (!change.before.present || (!isRemoved && oldName == name))
            continue;
        changed[static_cast<size_t>(change.id)] = true;
        if (isRemoved)
            removals.push_back(&change);
        else
            m_newNames.insert(foldedName(oldName), name);
    }
    if (removals.empty() && m_newNames.isEmpty())
        return;
    follow(layers, codec, changed);
    for (const LayerChange* removal : removals) {
        const LayerEntry& before = removal->before;
        const QString key = foldedName(before.layer.properties.name);
        m_removed.push_back(before);
        m_removedNames.insert(key);
        const bool isMerged = removal->after.mergedInto != LayerId::None;
        const LayerEntry& target = layers.entry(of(removal->id).layer);
        if (isMerged)
            m_mergeTargets.insert(key, target.layer.properties.name);
        if (before.handle != 0)
            m_removedHandles.insert(
                before.handle, {before.layer.properties.name, isMerged ? target.handle : 0});
    }
}

/// Follows the merges of every layer, in this step and before, to a layer that still exists.
void LayerReplacements::follow(
    const LayerTable& layers, const TextCodec& codec, const std::vector<char>& changed)
{
    const LayerId zero = layers.zero();
    m_replacements.resize(changed.size());
    std::vector<size_t> path;
    for (size_t id = 0; id < m_replacements.size(); ++id) {
        size_t at = id;
        while (m_replacements[at].layer == LayerId::None) {
            const LayerEntry& entry = layers.entry(static_cast<LayerId>(at));
            if (entry.present) {
                m_replacements[at].layer = static_cast<LayerId>(at);
                if (changed[at])
                    m_replacements[at].name = codec.encode(entry.layer.properties.name);
                break;
            }
            path.push_back(at);
            at = static_cast<size_t>(entry.mergedInto != LayerId::None ? entry.mergedInto : zero);
        }
        for (; !path.empty(); path.pop_back()) {
            const size_t gone = path.back();
            m_replacements[gone] = m_replacements[at];
            if (changed[gone] && m_replacements[gone].name.isNull())
                m_replacements[gone].name =
                    codec.encode(layers.entry(m_replacements[at].layer).layer.properties.name);
            at = gone;
        }
    }
}

QString LayerReplacements::newName(const QString& name) const
{
    return m_newNames.value(foldedName(name));
}

bool LayerReplacements::isRemoved(const QString& name) const
{
    return m_removedNames.contains(foldedName(name));
}

QString LayerReplacements::mergeTarget(const QString& name) const
{
    return m_mergeTargets.value(foldedName(name));
}

QString LayerReplacements::currentName(const QString& name) const
{
    const QString key = foldedName(name);
    return m_newNames.value(key, m_mergeTargets.value(key));
}

} // namespace drawing
