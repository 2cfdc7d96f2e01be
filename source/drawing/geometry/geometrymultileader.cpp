#include "geometrymultileader.h"

#include <algorithm>

namespace drawing {

namespace {

/// Takes one coordinate of the point whose codes begin at `first`.
bool takeCoordinate(const Tag& tag, int first, Vec3& point)
{
    if (tag.code == first)
        point.x = tag.real();
    else if (tag.code == first + 10)
        point.y = tag.real();
    else if (tag.code == first + 20)
        point.z = tag.real();
    else
        return false;
    return true;
}

} // namespace

MultiLeader::MultiLeader(const EntityTags& tags)
{
    for (const Tag& tag : tags) {
        switch (m_part) {
        case Part::Outside:
            if (tag.code == 300 && tag.trimmed() == "CONTEXT_DATA{")
                m_part = Part::Context;
            break;
        case Part::Context:
            takeContext(tag);
            break;
        case Part::Leader:
            takeLeader(tag);
            break;
        case Part::Line:
            takeLine(tag);
            break;
        }
    }
}

void MultiLeader::takeContext(const Tag& tag)
{
    if (takeCoordinate(tag, 12, m_textPlace) || takeCoordinate(tag, 13, m_textDirection))
        return;
    switch (tag.code) {
    case 41:
        m_textHeight = tag.real();
        return;
    case 43:
        m_textWidth = tag.real();
        return;
    case 140:
        m_arrowSize = tag.real();
        return;
    case 171:
        m_textColumn = static_cast<int>(std::clamp<qint64>(tag.integer(), 1, 3)) - 1;
        return;
    case 290:
        m_hasText = tag.integer() != 0;
        return;
    case 301:
        m_part = Part::Outside;
        return;
    case 302:
        m_part = Part::Leader;
        m_firstLine = m_lines.size();
        return;
    case 304:
        m_text = tag.text();
        return;
    default:
        return;
    }
}

void MultiLeader::takeLeader(const Tag& tag)
{
    if (takeCoordinate(tag, 10, m_landing) || takeCoordinate(tag, 11, m_doglegDirection))
        return;
    if (tag.code == 40)
        m_doglegLength = tag.real();
    else if (tag.code == 303)
        finishLeader();
    if (tag.code != 304)
        return;
    m_part = Part::Line;
    m_lines.emplace_back();
}

void MultiLeader::takeLine(const Tag& tag)
{
    Path& line = m_lines.back();
    if (tag.code == 10)
        line.emplace_back();
    if (tag.code == 305)
        m_part = Part::Leader;
    else if (!line.empty())
        takeCoordinate(tag, 10, line.back());
}

/// All lines of a leader meet at the landing and share the dogleg from there.
void MultiLeader::finishLeader()
{
    for (std::size_t i = m_firstLine; i < m_lines.size(); ++i) {
        m_lines[i].push_back(m_landing);
        m_lines[i].push_back(m_landing + m_doglegDirection * m_doglegLength);
    }
    m_part = Part::Context;
}

} // namespace drawing
