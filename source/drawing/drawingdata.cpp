#include "drawingdata.h"

#include "tagscan.h"

namespace drawing {

std::string_view DrawingData::lineAt(qint64 offset) const
{
    const char* const begin = bytes.data() + offset;
    const char* end = findLineEnd(begin, bytes.data() + bytes.size());
    if (end != begin && end[-1] == '\r')
        --end;
    return {begin, static_cast<size_t>(end - begin)};
}

const ObjectPlace* DrawingData::objectByHandle(quint64 handle)
{
    if (!handles)
        handles.emplace(index.objects);
    return handles->find(handle);
}

QString DrawingData::plotStyleName(int colorIndex, quint64 handle) const
{
    return plotStylesByColor ? QStringLiteral("Color_%1").arg(colorIndex)
                             : plotStyles.value(handle);
}

} // namespace drawing
