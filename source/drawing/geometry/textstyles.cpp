#include "textstyles.h"

#include "file/drawingfile.h"
#include "file/owntags.h"
#include "file/symbolname.h"

#include <cmath>

namespace drawing {

namespace {

TextStyle readStyle(const TagReader& record)
{
    constexpr int kWidthFactor = 41;
    constexpr int kOblique = 50;
    constexpr double kSteepest = 85;
    TextStyle style;
    if (const Tag factor = findOwn(record, kWidthFactor); !factor.isNull() && factor.real() > 0)
        style.widthFactor = factor.real();
    if (const Tag oblique = findOwn(record, kOblique); !oblique.isNull())
        style.oblique = oblique.real();
    if (!(std::abs(style.oblique) <= kSteepest))
        style.oblique = 0;
    return style;
}

} // namespace

TextStyles::TextStyles(const DrawingFile& file)
{
    for (const ByteRange& record : file.table(TableKind::Style).records) {
        const TagReader tags = file.tags(record);
        const TextStyle style = readStyle(tags);
        m_byName.insert(foldedName(file.decoded(findOwn(tags, group::kName).trimmed())), style);
        m_byHandle.insert(ownHandle(tags), style);
    }
}

TextStyle TextStyles::find(const QString& name) const
{
    return m_byName.value(foldedName(name));
}

} // namespace drawing
