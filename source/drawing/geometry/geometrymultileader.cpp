#include "geometrymultileader.h"

#include <algorithm>
#include <utility>

namespace drawing {

MultiLeader::MultiLeader(const EntityTags& tags)
{
    for (const Tag& tag : tags) {
        switch (m_part) {
        case Part::Outside:
            takeOutside(tag);
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

/// Handles the properties of the entity itself, which follow its context.
void MultiLeader::takeOutside(const Tag& tag)
{
    enum LineKind { None = 0, Curved = 2 };
    if (tag.code == 300 && tag.trimmed() == "CONTEXT_DATA{")
        m_part = Part::Context;
    else if (tag.code == 170 && tag.integer() == None)
        m_lines.clear();
    else if ((tag.code == 170 && tag.integer() == Curved) || (tag.code == 291 && !tag.integer()))
        dropDoglegs();
    else if (tag.code == 292)
        m_hasFrame = tag.integer() != 0;
}

void MultiLeader::dropDoglegs()
{
    if (!std::exchange(m_hasDogleg, false))
        return;
    for (Path& line : m_lines)
        line.pop_back();
}

Transform3 MultiLeader::blockPlace() const
{
    return Transform3::translation(m_blockPlace) * Transform3::rotation(m_blockAngle * 180 / kPi) *
           Transform3::scaling(m_blockScale);
}

void MultiLeader::takeContext(const Tag& tag)
{
    if (takeCoordinate(tag, 12, m_textPlace) || takeCoordinate(tag, 13, m_textDirection) ||
        takeCoordinate(tag, 15, m_blockPlace) || takeCoordinate(tag, 16, m_blockScale))
        return;
    switch (tag.code) {
    case 46:
        m_blockAngle = tag.real();
        return;
    case 145:
        m_textGap = tag.real();
        return;
    case 340:
        m_textStyle = tag.handle();
        return;
    case 341:
        m_block = tag.handle();
        return;
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

/// Ends a leader. All of its lines meet at the landing and share the dogleg.
void MultiLeader::finishLeader()
{
    for (std::size_t i = m_firstLine; i < m_lines.size(); ++i) {
        m_lines[i].push_back(m_landing);
        m_lines[i].push_back(m_landing + m_doglegDirection * m_doglegLength);
    }
    m_part = Part::Context;
}

} // namespace drawing
