#include "textcolumns.h"

#include "file/owntags.h"

#include <algorithm>
#include <cmath>

namespace drawing {

TextColumns readTextColumns(TagReader tags)
{
    enum Code { Height = 41, Width = 44, Gutter = 45, OwnHeight = 46, Kind = 71, Count = 72 };
    constexpr int kFromTheRight = 74;
    constexpr qint64 kMost = 1000;
    TextColumns columns;
    bool hasColumns = false;
    TagSorter sorter;
    Tag tag;
    while (tags.next(tag)) {
        if (sorter.take(tag) != TagPart::Embedded)
            continue;
        if (tag.code == Kind)
            hasColumns = tag.integer() != 0;
        else if (tag.code == Count)
            columns.count = static_cast<int>(std::clamp<qint64>(tag.integer(), 1, kMost));
        else if (tag.code == Height)
            columns.height = tag.real();
        else if (tag.code == Width)
            columns.width = tag.real();
        else if (tag.code == Gutter)
            columns.gutter = tag.real();
        else if (tag.code == OwnHeight)
            columns.heights.push_back(tag.real());
        else if (tag.code == kFromTheRight)
            columns.fromTheRight = tag.integer() != 0;
    }
    const bool isUsable = hasColumns && columns.width > 0 && std::isfinite(columns.totalWidth());
    return isUsable ? columns : TextColumns();
}

std::vector<QStringList> TextColumns::split(const QStringList& lines, double lineDistance) const
{
    std::vector<QStringList> columns;
    int from = 0;
    for (int i = 0; i < count && from < lines.size(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const double own = at < heights.size() && heights[at] > 0 ? heights[at] : height;
        const int left = lines.size() - from;
        double fitting = std::floor(own / lineDistance);
        if (!(own > 0))
            fitting = std::ceil(left / double(count - i));
        const bool isLast = i + 1 == count;
        const int taken = isLast ? left : static_cast<int>(std::clamp<double>(fitting, 1, left));
        columns.push_back(lines.mid(from, taken));
        from += taken;
    }
    return columns;
}

double TextColumns::leftOf(int column) const
{
    return (fromTheRight ? count - 1 - column : column) * (width + gutter);
}

} // namespace drawing
