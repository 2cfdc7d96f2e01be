#pragma once

#include "geometrycurves.h"
#include "geometrytags.h"

namespace drawing {

/// The contents of a MULTILEADER. Its groups are nested in braces, and the meaning of a group code
/// depends on the nesting.
class MultiLeader
{
public:
    explicit MultiLeader(const EntityTags& tags);

    const std::vector<Path>& lines() const { return m_lines; } ///< Each begins at its arrow.
    double arrowSize() const { return m_arrowSize; }

    bool hasBlock() const { return m_block != 0; }
    quint64 block() const { return m_block; } ///< The handle of the block's record.
    Transform3 blockPlace() const;

    bool hasText() const { return m_hasText; }
    bool hasFrame() const { return m_hasFrame; } ///< Whether there is a frame around the text.
    double textGap() const { return m_textGap; }
    quint64 textStyle() const { return m_textStyle; } ///< The handle of the text style.
    /// Formatted like an MTEXT's text, not decoded.
    std::string_view text() const { return m_text; }
    Vec3 textPlace() const { return m_textPlace; }
    Vec3 textDirection() const { return m_textDirection; }
    double textHeight() const { return m_textHeight; }
    /// The width at which the text wraps; 0 for no wrapping.
    double textWidth() const { return m_textWidth; }
    /// 0, 1, 2: the text is aligned left, centred, right.
    int textColumn() const { return m_textColumn; }

private:
    enum class Part { Outside, Context, Leader, Line };

    void takeOutside(const Tag& tag);
    void dropDoglegs();
    void takeContext(const Tag& tag);
    void takeLeader(const Tag& tag);
    void takeLine(const Tag& tag);
    void finishLeader();

    Part m_part = Part::Outside;
    std::vector<Path> m_lines;
    std::size_t m_firstLine = 0; ///< The index of the first line of the leader being read.
    Vec3 m_landing;
    Vec3 m_doglegDirection;
    double m_doglegLength = 0;
    double m_arrowSize = 0;
    bool m_hasDogleg = true;
    quint64 m_block = 0;
    Vec3 m_blockPlace;
    Vec3 m_blockScale{1, 1, 1};
    double m_blockAngle = 0; ///< In radians.
    bool m_hasText = false;
    bool m_hasFrame = false;
    double m_textGap = 0;
    quint64 m_textStyle = 0;
    std::string_view m_text;
    Vec3 m_textPlace;
    Vec3 m_textDirection{1, 0, 0};
    double m_textHeight = 1;
    double m_textWidth = 0;
    int m_textColumn = 0;
};

} // namespace drawing
