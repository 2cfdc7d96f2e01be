#include "viewportview.h"

#include "entities/entities.h"
#include "file/drawingfile.h"
#include "file/owntags.h"

#include <cmath>
#include <map>

namespace drawing {

namespace {

constexpr int kCenterX = 12;
constexpr int kCenterY = 22;
constexpr int kHeight = 45;

/// The groups of the view, as the file has them.
std::map<int, Tag> viewTags(const DrawingFile& file, const Entity& viewport)
{
    std::map<int, Tag> found;
    OwnTags tags(file.tags(viewport.range()));
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == kCenterX || tag.code == kCenterY || tag.code == kHeight)
            found.emplace(tag.code, tag);
    }
    return found;
}

bool isWhole(const std::map<int, Tag>& tags)
{
    return tags.size() == 3 && tags.at(kHeight).real() != 0;
}

QByteArray realText(double value)
{
    constexpr int kDigits = 16;
    const QByteArray text = QByteArray::number(value, 'g', kDigits);
    const bool isInteger = text.indexOf('.') < 0 && text.indexOf('e') < 0;
    return isInteger ? text + ".0" : text;
}

} // namespace

bool hasOwnView(const DrawingFile& file, const Entity& viewport)
{
    return isWhole(viewTags(file, viewport));
}

bool writeView(DrawingFile& file, const Entity& viewport, const ViewportView& view)
{
    const std::map<int, Tag> tags = viewTags(file, viewport);
    const bool isSeen = view.height > 0 && std::isfinite(view.height) &&
                        std::isfinite(view.center.x()) && std::isfinite(view.center.y());
    if (!isWhole(tags) || !isSeen)
        return false;
    const TagStyle style = file.styleOf(viewport.range());
    const auto write = [&](int code, double value) {
        file.journal().replace(tags.at(code).valueRange(), style.value(code, realText(value)));
    };
    write(kCenterX, view.center.x());
    write(kCenterY, view.center.y());
    write(kHeight, view.height);
    return true;
}

} // namespace drawing
