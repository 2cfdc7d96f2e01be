#include "translationlists.h"

#include "hostapi/hosttree.h"
#include "namerule.h"

#include <algorithm>
#include <optional>

namespace vnsi {

namespace {

QString sourceName(const VnJsonPtr& record)
{
    return record ? vnutOdStringToQString(record->GetDataSW(transkey::kFromName)) : QString();
}

std::vector<TranslationLists::Source> copiedSources(const VnJsonPtr& records)
{
    std::vector<TranslationLists::Source> sources;
    for (int i = 0, count = hostapi::count(records); i < count; ++i) {
        const VnJsonPtr record = hostapi::item(records, i);
        const QString name = sourceName(record);
        if (!name.isEmpty())
            sources.push_back({name, hostapi::copyOf(record), i});
    }
    return sources;
}

TargetRecord copied(const TargetRecord& target)
{
    return TargetRecord(hostapi::copyOf(target.node()));
}

/// Hands out the rows of layers, each once.
class FreeRows
{
public:
    explicit FreeRows(const std::vector<TranslationLists::Source>& sources) : m_sources(sources)
    {
        for (std::size_t row = sources.size(); row-- > 0;)
            m_rows[foldedName(sources[row].name)].push_back(row);
    }

    /// Takes the row of a layer with this name; nothing when no such row is left.
    std::optional<std::size_t> take(const QString& name)
    {
        const auto found = m_rows.find(foldedName(name));
        if (found == m_rows.end() || found->empty())
            return {};
        std::vector<std::size_t>& rows = *found;
        const auto alike = std::find_if(rows.rbegin(), rows.rend(),
            [&](std::size_t row) { return m_sources[row].name == name; });
        const auto best = alike == rows.rend() ? rows.end() - 1 : alike.base() - 1;
        const std::size_t row = *best;
        rows.erase(best);
        return row;
    }

private:
    const std::vector<TranslationLists::Source>& m_sources;
    /// The keys are folded names; the first row is at the end.
    QHash<QString, std::vector<std::size_t>> m_rows;
};

bool standsBefore(const TranslationLists::Source& a, const TranslationLists::Source& b)
{
    return a.place < b.place;
}

} // namespace

VnJsonPtr TranslationLists::sourceArray() const
{
    VnJsonPtr array = hostapi::makeArray(static_cast<int>(m_sources.size()));
    for (const Source& source : m_sources)
        hostapi::append(array, hostapi::copyOf(source.record));
    return array;
}

VnJsonPtr TranslationLists::targetArray() const
{
    VnJsonPtr array = hostapi::makeArray(static_cast<int>(m_targets.size()));
    for (const TargetRecord& target : m_targets)
        hostapi::append(array, hostapi::copyOf(target.node()));
    return array;
}

VnJsonPtr TranslationLists::mappingArray() const
{
    VnJsonPtr array = hostapi::makeArray(static_cast<int>(m_mappings.size()));
    for (const Mapping& mapping : m_mappings) {
        const VnJsonPtr entry = hostapi::makeObject();
        hostapi::Members(entry)
            .set(transkey::kFrom, hostapi::copyOf(mapping.source.record))
            .set(transkey::kTo, hostapi::copyOf(mapping.target.node()));
        hostapi::append(array, entry);
    }
    return array;
}

bool TranslationLists::setSources(const VnJsonPtr& records)
{
    const std::vector<Source> all = copiedSources(records);
    FreeRows free(all);
    std::vector<char> isMapped(all.size());
    std::vector<Mapping> kept;
    for (const Mapping& mapping : m_mappings) {
        if (const auto row = free.take(mapping.source.name)) {
            isMapped[*row] = true;
            kept.push_back({all[*row], mapping.target});
        }
    }
    const bool isAnyGone = kept.size() < m_mappings.size();
    m_mappings.swap(kept);
    m_sources.clear();
    for (std::size_t row = 0; row < all.size(); ++row) {
        if (!isMapped[row])
            m_sources.push_back(all[row]);
    }
    return isAnyGone;
}

void TranslationLists::setTargets(const VnJsonPtr& records)
{
    m_targets.clear();
    m_targetRows.clear();
    for (int i = 0, count = hostapi::count(records); i < count; ++i) {
        const TargetRecord target(hostapi::item(records, i));
        const QString name = foldedName(target.name());
        if (name.isEmpty())
            continue;
        if (!m_targetRows.contains(name))
            m_targetRows.insert(name, static_cast<int>(m_targets.size()));
        m_targets.push_back(copied(target));
    }
}

/// Moves the layers that have a target in their row to the mappings.
bool TranslationLists::moveMapped(const std::vector<TargetRecord>& targetsByRow)
{
    std::vector<Source> kept;
    for (std::size_t row = 0; row < m_sources.size(); ++row) {
        if (targetsByRow[row].isNull())
            kept.push_back(m_sources[row]);
        else
            m_mappings.push_back({m_sources[row], copied(targetsByRow[row])});
    }
    const bool hasMoved = kept.size() < m_sources.size();
    m_sources.swap(kept);
    return hasMoved;
}

void TranslationLists::map(const std::vector<int>& rows, const TargetRecord& target)
{
    std::vector<TargetRecord> targets(m_sources.size(), TargetRecord({}));
    for (const int row : rows)
        targets.at(static_cast<std::size_t>(row)) = target;
    moveMapped(targets);
}

const TargetRecord* TranslationLists::sameTarget(const Source& source) const
{
    const auto row = m_targetRows.constFind(foldedName(source.name));
    return row == m_targetRows.constEnd() ? nullptr : &m_targets[static_cast<std::size_t>(*row)];
}

bool TranslationLists::hasSame() const
{
    return std::any_of(m_sources.begin(), m_sources.end(),
        [this](const Source& source) { return sameTarget(source); });
}

void TranslationLists::mapSame()
{
    std::vector<TargetRecord> targets;
    for (const Source& source : m_sources) {
        const TargetRecord* const target = sameTarget(source);
        targets.push_back(target ? *target : TargetRecord({}));
    }
    moveMapped(targets);
}

bool TranslationLists::applyLoaded(const VnJsonPtr& mappings)
{
    FreeRows free(m_sources);
    std::vector<TargetRecord> targets(m_sources.size(), TargetRecord({}));
    for (int i = 0, count = hostapi::count(mappings); i < count; ++i) {
        const VnJsonPtr entry = hostapi::item(mappings, i);
        const TargetRecord target(entry ? entry->GetDataJ(transkey::kTo) : VnJsonPtr());
        if (target.isNull())
            continue;
        // Files count in the order in which they were chosen; a later one finds the layer already
        // mapped.
        if (const auto row = free.take(sourceName(entry->GetDataJ(transkey::kFrom))))
            targets[*row] = target;
    }
    return moveMapped(targets);
}

void TranslationLists::unmap(int index)
{
    const auto mapping = m_mappings.begin() + index;
    const Source source = mapping->source;
    m_mappings.erase(mapping);
    m_sources.insert(
        std::upper_bound(m_sources.begin(), m_sources.end(), source, standsBefore), source);
}

void TranslationLists::unmapAll()
{
    for (const Mapping& mapping : m_mappings)
        m_sources.push_back(mapping.source);
    m_mappings.clear();
    std::sort(m_sources.begin(), m_sources.end(), standsBefore);
}

} // namespace vnsi
