#pragma once

#include <vector>

/// A set of entity indices, which must not be negative. Testing and adding take constant time.
class EntitySet
{
public:
    EntitySet() = default;
    explicit EntitySet(const std::vector<int>& entities)
    {
        for (const int entity : entities)
            insert(entity);
    }

    void insert(int entity)
    {
        const auto at = static_cast<std::size_t>(entity);
        if (at >= m_has.size())
            m_has.resize(at + 1 + at / 2);
        m_has[at] = true;
    }
    bool contains(int entity) const
    {
        const auto at = static_cast<std::size_t>(entity);
        return at < m_has.size() && m_has[at];
    }
    /// The indices in ascending order.
    std::vector<int> entities() const
    {
        std::vector<int> all;
        for (std::size_t i = 0; i < m_has.size(); ++i) {
            if (m_has[i])
                all.push_back(static_cast<int>(i));
        }
        return all;
    }

private:
    std::vector<bool> m_has;
};
