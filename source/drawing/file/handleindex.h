#pragma once

#include "drawingindex.h"

#include <unordered_map>

namespace drawing {

/// Objects by handle.
class HandleIndex
{
public:
    explicit HandleIndex(const std::vector<ObjectPlace>& objects) : m_objects(objects)
    {
        m_numbers.reserve(objects.size());
        for (size_t i = 0; i < objects.size(); ++i)
            m_numbers.try_emplace(objects[i].handle, i);
    }
    /// Null for handle 0 and for handles of anything but objects.
    const ObjectPlace* find(quint64 handle) const
    {
        const auto at = m_numbers.find(handle);
        return handle == 0 || at == m_numbers.end() ? nullptr : &m_objects[at->second];
    }

private:
    const std::vector<ObjectPlace>& m_objects;
    std::unordered_map<quint64, size_t> m_numbers;
};

} // namespace drawing
