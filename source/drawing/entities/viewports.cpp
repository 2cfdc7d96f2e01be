#include "viewports.h"

#include "file/owntags.h"

#include <algorithm>
#include <map>

namespace drawing {

bool isSheetsOwn(const TagReader& viewport)
{
    constexpr int kNumber = 69;
    // Position and height on the sheet, then those of the view.
    constexpr int kCodes[] = {10, 20, 41, 12, 22, 45};
    std::map<int, double> values;
    OwnTags tags(viewport);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == kNumber && tag.integer() == 1)
            return true;
        if (std::find(std::begin(kCodes), std::end(kCodes), tag.code) != std::end(kCodes))
            values.emplace(tag.code, tag.real());
    }
    return values.size() == std::size(kCodes) && values[10] == values[12] &&
           values[20] == values[22] && values[41] == values[45];
}

} // namespace drawing
