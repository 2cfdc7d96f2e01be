#include "targetrecord.h"

#include "translatorkeys.h"
#include "vnstrings.h"

namespace vnsi {

QString TargetRecord::text(const char* key) const
{
    return m_node ? vnutOdStringToQString(m_node->GetDataSW(key)) : QString();
}

QString TargetRecord::name() const
{
    return text(transkey::kToName);
}

QString TargetRecord::colorText() const
{
    const OdInt64 value = m_node ? m_node->GetDataL(transkey::kToColorValue) : 0;
    if (m_node && m_node->GetDataL(transkey::kToColorMethod) == OdCmEntityColor::kByACI)
        return QString::number(static_cast<int>(value));
    return QStringLiteral("RGB:%1,%2,%3")
        .arg(value & 0xFF)
        .arg(value >> 8 & 0xFF)
        .arg(value >> 16 & 0xFF);
}

QString TargetRecord::linetype() const
{
    return text(transkey::kToLinetype);
}

QString TargetRecord::lineWidthText() const
{
    return text(transkey::kToLineWidthText);
}

QString TargetRecord::transparencyText() const
{
    return QString::number(m_node ? m_node->GetDataI(transkey::kToTransparency) : 0);
}

QString TargetRecord::plotStyle() const
{
    return text(transkey::kToPlotStyle);
}

void TargetRecord::takeEdited(const VnJsonPtr& result)
{
    if (!m_node || !result)
        return;
    copyResultToTarget(*result, *m_node);
    m_node->SetDataB(transkey::kToUsed, true);
}

} // namespace vnsi
