#pragma once

#include <QHash>

#include <cstddef>
#include <mutex>

namespace drawing {

struct GeometrySource;

/// Which entities are drawn before or behind others than they stand in the file. It is read when
/// somebody first asks, on whichever thread.
class DrawOrder
{
public:
    /// The index of the entity in whose place this one is drawn.
    std::size_t rank(std::size_t entity, const GeometrySource& source) const;

private:
    void read(const GeometrySource& source) const;

    mutable std::once_flag m_isRead;
    mutable QHash<int, int> m_ranks; ///< Of those drawn elsewhere.
};

} // namespace drawing
