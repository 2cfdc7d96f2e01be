#include "layerorder.h"

#include "layercolumns.h"
#include "nameorder.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace {

/// Up to this many texts are sorted immediately.
constexpr int kFewLayers = 2000;

template <class Key, class Less>
std::vector<int> sortedPlaces(
    const std::vector<Key>& keys, Qt::SortOrder direction, const Less& less)
{
    std::vector<int> places(keys.size());
    std::iota(places.begin(), places.end(), 0);
    const auto key = [&keys](int at) -> const Key& { return keys[static_cast<size_t>(at)]; };
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        return direction == Qt::AscendingOrder ? less(key(a), key(b)) : less(key(b), key(a));
    });
    return places;
}

std::vector<int> sortedTexts(const std::vector<QString>& texts, Qt::SortOrder direction)
{
    const QCollator collator = nameCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const QString& text : texts)
        keys.push_back(collator.sortKey(text));
    return sortedPlaces(keys, direction,
        [](const QCollatorSortKey& a, const QCollatorSortKey& b) { return a.compare(b) < 0; });
}

} // namespace

LayerOrder::LayerOrder(QObject* parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

LayerOrder::~LayerOrder() = default;

void LayerOrder::sort(const LayerSnapshot& layers, int column, Qt::SortOrder direction)
{
    const LayerColumn& by = LayerColumns::at(column);
    const int round = ++m_round;
    m_isPending = false;
    if (by.number) {
        std::vector<qint64> numbers(static_cast<size_t>(layers.size()));
        for (int at = 0; at < layers.size(); ++at)
            numbers[static_cast<size_t>(at)] = by.number({layers, at});
        m_places = sortedPlaces(numbers, direction, std::less<>());
        return;
    }
    std::vector<QString> texts(static_cast<size_t>(layers.size()));
    for (int at = 0; at < layers.size(); ++at)
        texts[static_cast<size_t>(at)] = by.text({layers, at});
    if (layers.size() <= kFewLayers) {
        m_places = sortedTexts(texts, direction);
        return;
    }
    keepPresent(layers.size());
    m_isPending = true;
    m_pool.start([this, round, direction, texts = std::move(texts)] {
        Places places = sortedTexts(texts, direction);
        QMetaObject::invokeMethod(
            this,
            [this, round, places = std::move(places)] {
                if (round == m_round)
                    take(places);
            },
            Qt::QueuedConnection);
    });
}

void LayerOrder::take(Places places)
{
    m_isPending = false;
    m_places = std::move(places);
    emit sorted();
}

/// Derives an order of `count` layers from the present order.
void LayerOrder::keepPresent(int count)
{
    std::vector<char> isThere(static_cast<size_t>(count));
    Places kept;
    kept.reserve(static_cast<size_t>(count));
    for (const int at : m_places) {
        if (at < count) {
            isThere[static_cast<size_t>(at)] = true;
            kept.push_back(at);
        }
    }
    for (int at = 0; at < count; ++at) {
        if (!isThere[static_cast<size_t>(at)])
            kept.push_back(at);
    }
    m_places = std::move(kept);
}
