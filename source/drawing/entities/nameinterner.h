#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace drawing {

/// Numbers different spellings of names in the order in which they occur. Names are neither decoded
/// nor copied; their bytes must outlive this object.
class NameInterner
{
public:
    int intern(std::string_view name)
    {
        const Key key = keyOf(name);
        Known& known = m_known[slotOf(key)];
        if (known.key == key && name.size() <= kWhole)
            return known.number;
        const auto [at, isNew] = m_numbers.try_emplace(name, static_cast<int>(m_names.size()));
        if (isNew)
            m_names.push_back(name);
        known = {key, at->second};
        return at->second;
    }
    /// The number of a known name; -1 for an unknown one.
    int find(std::string_view name) const
    {
        const auto at = m_numbers.find(name);
        return at == m_numbers.end() ? -1 : at->second;
    }
    const std::vector<std::string_view>& names() const { return m_names; }

private:
    /// The first and last bytes of a name. They overlap in short names and then cover the whole
    /// name.
    struct Key
    {
        quint64 head = 0;
        quint64 tail = 0;
        size_t size = ~size_t(0);

        bool operator==(const Key& other) const
        {
            return head == other.head && tail == other.tail && size == other.size;
        }
    };
    struct Known
    {
        Key key;
        int number = -1;
    };
    /// Up to this length the key covers the whole name.
    static constexpr size_t kWhole = 2 * sizeof(quint64);
    static constexpr int kSlotBits = 6;

    static Key keyOf(std::string_view name)
    {
        Key key{0, 0, name.size()};
        const size_t part = std::min(name.size(), sizeof key.head);
        if (part > 0) {
            std::memcpy(&key.head, name.data(), part);
            std::memcpy(&key.tail, name.data() + name.size() - part, part);
        }
        return key;
    }
    static size_t slotOf(const Key& key)
    {
        return ((key.head * 31 + key.tail) * 0x9e3779b97f4a7c15) >> (64 - kSlotBits);
    }

    std::unordered_map<std::string_view, int> m_numbers;
    std::vector<std::string_view> m_names;
    /// A cache of recently used names, because hashing takes time.
    std::array<Known, 1 << kSlotBits> m_known;
};

} // namespace drawing
