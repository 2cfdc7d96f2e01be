#include "translationlists.h"

#include "namerule.h"
#include "translatorkeys.h"
#include "vnstrings.h"

#include <QSet>

#include <algorithm>
#include <vector>

namespace vnsi {

namespace {

QString foldedText(const VnJsonPtr& record, const char* key)
{
    return record ? foldedName(vnutOdStringToQString(record->GetDataSW(key))) : QString();
}

/// By folded name; the first of several.
QHash<QString, int> rowsOf(const VnJsonPtr& records, const char* key)
{
    QHash<QString, int> rows;
    for (int i = 0, count = records.ArrayCount(); i < count; ++i) {
        const QString name = foldedText(records(i), key);
        if (!rows.contains(name))
            rows.insert(name, i);
    }
    return rows;
}

/// Folded.
QString mappedName(const VnJsonPtr& mapping)
{
    return foldedText(mapping->GetDataJ(transkey::kFrom), transkey::kFromName);
}

} // namespace

TranslationLists::TranslationLists()
    : m_sources(ElementValue::createArray()),
      m_targets(ElementValue::createArray()),
      m_mappings(ElementValue::createArray())
{
}

void TranslationLists::setSources(const VnJsonPtr& records)
{
    m_places = rowsOf(records, transkey::kFromName);
    QSet<QString> mapped;
    for (int i = 0, count = m_mappings.ArrayCount(); i < count; ++i)
        mapped.insert(mappedName(m_mappings(i)));
    m_sources = ElementValue::createArray(records.ArrayCount());
    for (int i = 0, count = records.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = records(i);
        if (record && !mapped.contains(foldedText(record, transkey::kFromName)))
            m_sources->Append(record);
    }
}

void TranslationLists::setTargets(const VnJsonPtr& records)
{
    m_targets = records ? records : ElementValue::createArray();
    m_targetRows = rowsOf(m_targets, transkey::kToName);
}

VnJsonPtr TranslationLists::target(const QString& name) const
{
    const auto row = m_targetRows.constFind(foldedName(name));
    return row == m_targetRows.constEnd() ? VnJsonPtr() : m_targets(*row);
}

QStringList TranslationLists::targetNames() const
{
    QStringList names;
    for (int i = 0, count = m_targets.ArrayCount(); i < count; ++i)
        names.append(vnutOdStringToQString(m_targets(i)->GetDataSW(transkey::kToName)));
    return names;
}

/// Moves the layers for which `targetOf` (by folded name) gives a target into mappings, in one
/// pass.
template <class TargetOf>
bool TranslationLists::moveMapped(TargetOf&& targetOf)
{
    const VnJsonPtr kept = ElementValue::createArray(m_sources.ArrayCount());
    bool hasMoved = false;
    for (int i = 0, count = m_sources.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = m_sources(i);
        const VnJsonPtr target = targetOf(foldedText(record, transkey::kFromName));
        if (!target) {
            kept->Append(record);
            continue;
        }
        const VnJsonPtr mapping = ElementValue::createObject(2);
        mapping->SetDataJ(transkey::kFrom, record);
        mapping->SetDataJ(transkey::kTo, ElementValue::clone(target));
        m_mappings->Append(mapping);
        hasMoved = true;
    }
    m_sources = kept;
    return hasMoved;
}

void TranslationLists::map(const QStringList& names, const VnJsonPtr& target)
{
    QSet<QString> wanted;
    for (const QString& name : names)
        wanted.insert(foldedName(name));
    moveMapped([&](const QString& name) { return wanted.remove(name) ? target : VnJsonPtr(); });
}

bool TranslationLists::mapSame(bool doIt)
{
    const auto isTarget = [this](const QString& name) { return m_targetRows.contains(name); };
    if (doIt) {
        return moveMapped([&](const QString& name) {
            return isTarget(name) ? m_targets(m_targetRows.value(name)) : VnJsonPtr();
        });
    }
    for (int i = 0, count = m_sources.ArrayCount(); i < count; ++i) {
        if (isTarget(foldedText(m_sources(i), transkey::kFromName)))
            return true;
    }
    return false;
}

bool TranslationLists::applyLoaded(const VnJsonPtr& mappings)
{
    QHash<QString, VnJsonPtr> targets;
    for (int i = 0, count = mappings.ArrayCount(); i < count; ++i) {
        const VnJsonPtr target = mappings(i)->GetDataJ(transkey::kTo);
        const QString name = mappedName(mappings(i));
        if (target && !targets.contains(name)) // Files count in the order of their choice.
            targets.insert(name, target);
    }
    return moveMapped([&](const QString& name) { return targets.take(name); });
}

void TranslationLists::unmap(int index)
{
    const VnJsonPtr mapping = m_mappings(index);
    if (!mapping)
        return;
    const VnJsonPtr gone = ElementValue::createArray(1);
    gone->Append(mapping);
    m_mappings->Remove(index);
    giveBack(gone);
}

void TranslationLists::unmapAll()
{
    const VnJsonPtr gone = m_mappings;
    m_mappings = ElementValue::createArray();
    giveBack(gone);
}

void TranslationLists::giveBack(const VnJsonPtr& mappings)
{
    const QHash<QString, int> present = rowsOf(m_sources, transkey::kFromName);
    std::vector<std::pair<int, VnJsonPtr>> records;
    const auto add = [&](const VnJsonPtr& record) {
        const QString name = foldedText(record, transkey::kFromName);
        records.emplace_back(m_places.value(name, m_places.size()), record);
    };
    for (int i = 0, count = m_sources.ArrayCount(); i < count; ++i)
        add(m_sources(i));
    for (int i = 0, count = mappings.ArrayCount(); i < count; ++i) {
        if (!present.contains(mappedName(mappings(i))))
            add(mappings(i)->GetDataJ(transkey::kFrom));
    }
    std::stable_sort(records.begin(), records.end(),
        [](const auto& a, const auto& b) { return a.first < b.first; });
    m_sources = ElementValue::createArray(static_cast<int>(records.size()));
    for (const auto& [place, record] : records)
        m_sources->Append(record);
}

} // namespace vnsi
