#pragma once

#include <QCollator>

#include <algorithm>
#include <utility>
#include <vector>

/// Sorts layer names as people expect: letter case is ignored, and numbers are compared by value.
QCollator nameCollator();

/// Sorts what `nameOf` names; those of one name stay in their order.
template <class Item, class NameOf>
void sortByName(std::vector<Item>& items, const NameOf& nameOf)
{
    const QCollator collator = nameCollator();
    std::vector<std::pair<QCollatorSortKey, Item>> keyed;
    keyed.reserve(items.size());
    for (Item& item : items) {
        QCollatorSortKey key = collator.sortKey(nameOf(item));
        keyed.emplace_back(std::move(key), std::move(item));
    }
    std::stable_sort(keyed.begin(), keyed.end(),
        [](const auto& a, const auto& b) { return a.first.compare(b.first) < 0; });
    std::transform(keyed.begin(), keyed.end(), items.begin(),
        [](auto& entry) { return std::move(entry.second); });
}
