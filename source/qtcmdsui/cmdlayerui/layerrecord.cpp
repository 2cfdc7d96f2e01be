#include "layerrecord.h"

namespace vnsi {

OdCmColor LayerColor::resolved() const
{
    OdCmColor color(0, 0, 0);
    if (method == OdCmEntityColor::kByACI) {
        color.setColorMethod(OdCmEntityColor::kByACI);
        color.setColorIndex(static_cast<OdInt16>(value));
    } else {
        color.setRGB(static_cast<OdUInt8>(value), static_cast<OdUInt8>(value >> 8),
            static_cast<OdUInt8>(value >> 16));
    }
    return color;
}

OdInt64 LayerColor::chosenValue() const
{
    return method == OdCmEntityColor::kByACI ? static_cast<OdInt16>(value) : value;
}

LayerColor LayerRecord::color() const
{
    if (!m_node)
        return {};
    return {m_node->GetDataL(layerkey::kColorMethod), m_node->GetDataL(layerkey::kColorValue)};
}

void LayerRecord::setColor(const LayerColor& color)
{
    if (!m_node)
        return;
    m_node->SetDataL(layerkey::kColorValue, color.value);
    m_node->SetDataL(layerkey::kColorMethod, color.method);
}

bool LayerRecord::isModified() const
{
    return flag(layerkey::kModified) || number(layerkey::kModified) == 1;
}

} // namespace vnsi
