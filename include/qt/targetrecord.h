#pragma once

#include "layercolor.h"
#include "translatorkeys.h"
#include "vnstrings.h"

#include <QCoreApplication>
#include <QString>

#include <utility>

namespace vnsi {

/// A view of the record of one target layer, for the translator's dialogs and their command. It
/// shares the node, so writing through it changes the list. Without a node every getter returns its
/// default and every setter does nothing.
class TargetRecord
{
public:
    explicit TargetRecord(VnJsonPtr node) : m_node(std::move(node)) {}
    bool isNull() const { return !m_node; }
    const VnJsonPtr& node() const { return m_node; }

    QString name() const { return text(transkey::kToName); }
    void setName(const QString& name) { setText(transkey::kToName, name); }

    LayerColor color() const
    {
        return m_node ? LayerColor::read(*m_node, transkey::kToColorMethod, transkey::kToColorValue)
                      : LayerColor{};
    }
    void setColor(const LayerColor& color)
    {
        if (m_node)
            color.write(*m_node, transkey::kToColorMethod, transkey::kToColorValue);
    }
    /// The text of the colour: its index, or the three parts of a true colour.
    QString colorText() const
    {
        const LayerColor shown = color();
        if (shown.isIndex())
            return QString::number(static_cast<int>(shown.value));
        return QStringLiteral("RGB:%1,%2,%3").arg(shown.red()).arg(shown.green()).arg(shown.blue());
    }

    QString linetype() const { return text(transkey::kToLinetype); }
    /// The number by which the maker of the record knows the linetype; 0 when there is none.
    OdInt64 linetypeId() const { return m_node ? m_node->GetDataL(transkey::kToLinetypeId) : 0; }
    void setLinetype(const QString& name, OdInt64 id)
    {
        setText(transkey::kToLinetype, name);
        if (m_node)
            m_node->SetDataL(transkey::kToLinetypeId, id);
    }

    bool hasLineWidth() const { return lineWidth(0) == lineWidth(1); }
    /// The lineweight in hundredths of a millimetre; -3 is the default lineweight.
    int lineWidth(int fallback = -3) const
    {
        return m_node ? m_node->GetDataI(transkey::kToLineWidth, fallback) : fallback;
    }
    QString lineWidthText() const { return text(transkey::kToLineWidthText); }
    void setLineWidth(int weight, const QString& shown)
    {
        setText(transkey::kToLineWidthText, shown);
        if (m_node)
            m_node->SetDataI(transkey::kToLineWidth, weight);
    }

    /// The transparency in percent, 0 to 90.
    int transparency() const { return m_node ? m_node->GetDataI(transkey::kToTransparency) : 0; }
    QString transparencyText() const { return QString::number(transparency()); }
    void setTransparency(int percent)
    {
        if (m_node)
            m_node->SetDataI(transkey::kToTransparency, percent);
    }

    QString plotStyle() const { return text(transkey::kToPlotStyle); }
    /// The plot style in the user's language. Styles that a drawing defines keep their names.
    QString plotStyleText() const { return plotStyleText(plotStyle()); }
    static QString plotStyleText(const QString& style)
    {
        return style == QString::fromUtf8(transkey::kNormalPlotStyle)
                   ? QCoreApplication::translate("cmdlayerui", "普通")
                   : style;
    }
    void setPlotStyle(const QString& style) { setText(transkey::kToPlotStyle, style); }

    /// Whether the layer holds objects.
    bool isUsed() const { return m_node && m_node->GetDataB(transkey::kToUsed); }
    void setUsed(bool isUsed)
    {
        if (m_node)
            m_node->SetDataB(transkey::kToUsed, isUsed);
    }

    /// Copies the answer of the new/edit dialog into the record, except whether the layer is used.
    void takeResult(const IElementValueBase& result)
    {
        using namespace transkey;
        const auto answer = [&](const char* key) {
            return vnutOdStringToQString(result.GetDataSW(key));
        };
        setName(answer(kResultName));
        setColor(LayerColor::read(result, kResultColorMethod, kResultColorValue));
        setLinetype(answer(kResultLinetype), result.GetDataL(kResultLinetypeId));
        setLineWidth(result.GetDataI(kResultLineWidth), answer(kResultLineWidthText));
        setTransparency(result.GetDataI(kResultTransparency));
        setPlotStyle(answer(kResultPlotStyle));
    }

private:
    QString text(const char* key) const
    {
        return m_node ? vnutOdStringToQString(m_node->GetDataSW(key)) : QString();
    }
    void setText(const char* key, const QString& value)
    {
        if (m_node)
            m_node->SetDataSW(key, vnutQStringToOdString(value));
    }

    VnJsonPtr m_node;
};

} // namespace vnsi
