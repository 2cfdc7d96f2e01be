#include "layerrecord.h"

#include <cstdlib>

namespace drawing {

namespace {

constexpr int kDefaultColor = 7;
int colorOf(qint64 index)
{
    return index != 0 && index >= -255 && index <= 255 ? static_cast<int>(std::abs(index))
                                                       : kDefaultColor;
}

} // namespace

bool opensGroup(int code, std::string_view value)
{
    return code == 102 && !value.empty() && value.front() == '{';
}

LayerRecord LayerRecordReader::read(TagReader tags)
{
    LayerRecord record;
    m_application = {};
    bool inGroup = false; // Of 102 groups: what they hold is not the record's own.
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 1001) {
            m_application = tag.trimmed();
            m_strings = 0;
        } else if (!m_application.empty()) {
            readXdata(tag, record);
        } else if (tag.code == 102 || tag.code == 100) {
            inGroup = opensGroup(tag.code, tag.trimmed());
        } else if (!inGroup) {
            readTag(tag, record);
        }
    }
    LayerProperties& p = record.properties;
    p.plotted = p.plotted && !isNeverPlotted(p.name);
    return record;
}

void LayerRecordReader::readTag(const Tag& tag, LayerRecord& record)
{
    LayerProperties& p = record.properties;
    switch (tag.code) {
    case 2:
        p.name = m_codec.decode(tag.trimmed());
        break;
    case 5:
        record.handle = tag.handle();
        break;
    case 6:
        if (tag.trimmed() != m_linetypeBytes) {
            m_linetypeBytes = tag.trimmed();
            m_linetype = m_codec.decode(m_linetypeBytes);
        }
        p.linetype = m_linetype;
        break;
    case 62:
        p.off = tag.integer() < 0;
        p.colorIndex = colorOf(tag.integer());
        break;
    case 70:
        p.frozen = (tag.integer() & kLayerFrozen) != 0;
        p.frozenInNewViewports = (tag.integer() & kLayerFrozenInNewViewports) != 0;
        p.locked = (tag.integer() & kLayerLocked) != 0;
        record.dependsOnReference = (tag.integer() & kLayerFromReference) != 0;
        break;
    case 290:
        p.plotted = tag.integer() != 0;
        break;
    case 347:
        record.material = tag.handle();
        break;
    case 370:
        p.lineweight = static_cast<int>(tag.integer());
        break;
    case 390:
        record.plotStyle = tag.handle();
        break;
    case 420:
        p.trueColor = static_cast<quint32>(tag.integer() & 0xffffff);
        break;
    default:
        break;
    }
}

void LayerRecordReader::readXdata(const Tag& tag, LayerRecord& record)
{
    if (tag.code == 1071 && m_application == kTransparencyApp)
        record.properties.transparency = transparencyPercent(tag.integer());
    if (tag.code != 1000 || m_application != kStandardApp)
        return;
    // The second string is the description.
    if (++m_strings == 2)
        record.properties.description = m_codec.decode(tag.text());
}

LayerRecordLimits LayerRecordLimits::of(std::string_view version)
{
    const bool since2000 = version >= "AC1015";
    const bool since2004 = version >= "AC1018";
    return {version >= "AC1012", since2000, since2000, since2004, since2004};
}

} // namespace drawing
