#include "vnpickers.h"

#include "swatches.h"
#include "vncolortext.h"
#include "vndialogs.h"
#include "vnstrings.h"

namespace vnsi {

namespace {

constexpr int kNamedColors = 7;
constexpr int kByLayer = 256;
constexpr int kByBlock = 0;
/// The data of a row combines the method and the value of its colour in one number.
constexpr int kMethodShift = 32;
constexpr qlonglong kMoreColors = -1;

OdCmColor indexColor(int index)
{
    OdCmColor color;
    color.setColorIndex(static_cast<OdInt16>(index));
    return color;
}

qlonglong packedRgb(const OdCmColor& color)
{
    return color.red() | color.green() << 8 | color.blue() << 16;
}

qlonglong rowData(const OdCmColor& color)
{
    const bool isTrue = color.colorMethod() == OdCmEntityColor::kByColor;
    const qlonglong value = isTrue ? packedRgb(color) : color.colorIndex();
    return static_cast<qlonglong>(color.colorMethod()) << kMethodShift | value;
}

OdCmColor colorFrom(OdInt64 method, OdInt64 value)
{
    if (method == OdCmEntityColor::kByColor)
        return OdCmColor(static_cast<OdUInt8>(value), static_cast<OdUInt8>(value >> 8),
            static_cast<OdUInt8>(value >> 16));
    return indexColor(static_cast<int>(value));
}

void insertRow(QComboBox& box, int row, const OdCmColor& color)
{
    box.insertItem(row, host::swatchIcon(host::toQColor(color)),
        vnutOdStringToQString(formatColor(color, {}, {})), rowData(color));
}

} // namespace

VnColorComboBox::VnColorComboBox(QWidget* parent) : QComboBox(parent), m_color(indexColor(kByLayer))
{
    for (const int index : {kByLayer, kByBlock})
        insertRow(*this, count(), indexColor(index));
    for (int index = 1; index <= kNamedColors; ++index)
        insertRow(*this, count(), indexColor(index));
    addItem(tr("选择颜色..."), kMoreColors);
    connect(
        this, QOverload<int>::of(&QComboBox::activated), this, &VnColorComboBox::handleActivated);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &VnColorComboBox::handleCurrentChanged);
}

int VnColorComboBox::FindColor(const OdCmColor& color) const
{
    return findData(rowData(color));
}

int VnColorComboBox::AppendColorItem(const OdCmColor& color)
{
    const int found = FindColor(color);
    if (found >= 0)
        return found;
    const int row = count() - 1; // Before the row that opens the dialog.
    insertRow(*this, row, color);
    return row;
}

void VnColorComboBox::handleActivated(int index)
{
    if (itemData(index).toLongLong() != kMoreColors)
        return;
    const VnJsonPtr keys = ElementValue::createObject(5);
    const bool isTrue = m_color.colorMethod() == OdCmEntityColor::kByColor;
    keys->SetDataL("selectClr", isTrue ? packedRgb(m_color) : m_color.colorIndex());
    keys->SetDataI("clrMethod", m_color.colorMethod());
    keys->SetDataI("isByLayerEnable", FindColor(indexColor(kByLayer)) >= 0 ? 1 : 0);
    keys->SetDataI("isByBLockEnable", FindColor(indexColor(kByBlock)) >= 0 ? 1 : 0);
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(L"Dialog/Common", L"ColorDialog", keys, {}, window());
    const bool isChosen = answer->GetDataI("result") == 1;
    setCurrentIndex(AppendColorItem(
        isChosen ? colorFrom(answer->GetDataI("clrMethod"), answer->GetDataL("selectClr"))
                 : m_color));
}

void VnColorComboBox::handleCurrentChanged(int index)
{
    const qlonglong row = index < 0 ? kMoreColors : itemData(index).toLongLong();
    if (row == kMoreColors || row == rowData(m_color))
        return;
    m_color = colorFrom(row >> kMethodShift, static_cast<OdInt32>(row & 0xFFFFFFFF));
}

} // namespace vnsi
