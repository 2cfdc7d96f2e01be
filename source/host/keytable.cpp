#include "keytable.h"

#include <deque>
#include <mutex>
#include <unordered_map>

namespace vnsi {

namespace {

struct KeyTable
{
    std::mutex mutex;
    std::deque<Key> keys;
    std::unordered_map<std::string_view, const Key*> byText;
};

/// The table is never destroyed because nodes may outlive every static object.
KeyTable& keyTable()
{
    static auto* const table = new KeyTable;
    return *table;
}

} // namespace

const Key* internKey(std::string_view text)
{
    KeyTable& table = keyTable();
    const std::lock_guard lock(table.mutex);
    if (const auto found = table.byText.find(text); found != table.byText.end())
        return found->second;
    const Key& key =
        table.keys.emplace_back(Key{std::string(text), std::hash<std::string_view>()(text)});
    table.byText.emplace(key.text, &key);
    return &key;
}

} // namespace vnsi
