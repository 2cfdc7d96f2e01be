#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace drawing {

/// Numbers the spellings of names as they are met, without decoding or copying them: the bytes must
/// outlive this.
class NameInterner
{
public:
    int intern(std::string_view name)
    {
        // Entities come in runs on one layer.
        if (m_last >= 0 && name == m_names[static_cast<size_t>(m_last)])
            return m_last;
        const auto [at, isNew] = m_numbers.try_emplace(name, static_cast<int>(m_names.size()));
        if (isNew)
            m_names.push_back(name);
        return m_last = at->second;
    }
    /// The number of a name met before; -1 when it was not.
    int find(std::string_view name) const
    {
        const auto at = m_numbers.find(name);
        return at == m_numbers.end() ? -1 : at->second;
    }
    const std::vector<std::string_view>& names() const { return m_names; }

private:
    std::unordered_map<std::string_view, int> m_numbers;
    std::vector<std::string_view> m_names;
    int m_last = -1;
};

} // namespace drawing
