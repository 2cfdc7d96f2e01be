#pragma once

#include <vector>

/// A set of entities by their indices, which are not below 0; asking and adding take no time that
/// grows with the set.
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
    /// Ascending.
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
