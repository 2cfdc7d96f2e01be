#include "vnqtlaytransneweditdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "namerule.h"
#include "vnpickers.h"
#include "vnstrings.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <optional>

namespace vnsi {

namespace {

constexpr int kMostTransparent = 90;
constexpr int kTransparencyStep = 10;
constexpr int kFirstLineWidth = 6;
constexpr int kFirstColor = 1;
constexpr const char* kPlotStyles[] = {transkey::kNormalPlotStyle, "ByLayer", "ByBlock"};
/// The lineweight picker's codes for ByLayer, ByBlock and default.
constexpr int kWeightOfLayer = -1;
constexpr int kWeightOfBlock = -2;
constexpr int kUsualWeight = -3;
/// The colour indices of ByLayer and ByBlock.
constexpr OdInt16 kColorsOfOthers[] = {256, 0};

bool refuse(const QString& message)
{
    hostapi::messageBox(message, {}, kVnOk);
    return false;
}

void removeEntries(QComboBox& box, const QString& entry)
{
    for (int row = box.count() - 1; row >= 0; --row) {
        if (box.itemText(row).compare(entry, Qt::CaseInsensitive) == 0)
            box.removeItem(row);
    }
}

/// Selects an entry and adds it when the list lacks it, so that showing a record does not change
/// it.
void showText(QComboBox& box, const QString& entry)
{
    if (entry.isEmpty())
        return;
    int row = box.findText(entry, Qt::MatchFixedString);
    if (row < 0) {
        row = box.count();
        box.addItem(entry);
    }
    box.setCurrentIndex(row);
}

/// Adds an entry that shows a translated text and stores the record's value.
void addPlotStyle(QComboBox& box, const QString& style)
{
    box.addItem(TargetRecord::plotStyleText(style), style);
}

void showPlotStyle(QComboBox& box, const QString& style)
{
    if (style.isEmpty())
        return;
    if (box.findData(style, Qt::UserRole, Qt::MatchFixedString) < 0)
        addPlotStyle(box, style);
    box.setCurrentIndex(box.findData(style, Qt::UserRole, Qt::MatchFixedString));
}

/// Selects the lineweight if the list has it. A picker only tells the weight of its selected row.
bool showWeight(VnLineWidthComboBox& box, int weight)
{
    const int before = box.currentIndex();
    for (int row = 0; row < box.count(); ++row) {
        box.setCurrentIndex(row);
        if (box.GetCurrentLineWeight() == weight)
            return true;
    }
    box.setCurrentIndex(before);
    return false;
}

/// Removes an entry by its weight, because the texts of pickers depend on the language.
void removeWeight(VnLineWidthComboBox& box, int weight)
{
    while (showWeight(box, weight))
        box.removeItem(box.currentIndex());
}

void removeColor(VnColorComboBox& box, OdInt16 index)
{
    OdCmColor color;
    color.setColorIndex(index);
    if (const int row = box.FindColor(color); row >= 0)
        box.removeItem(row);
}

/// Parses a whole number from 0 to the maximum; returns nothing for any other text.
std::optional<int> transparencyOf(const QString& text)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    bool fits = false;
    const int value = text.toInt(&fits);
    if (!fits || value > kMostTransparent || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    return value;
}

/// Converts the colour to the form in records, with red in the lowest byte.
LayerColor packed(const OdCmColor& color)
{
    if (color.colorMethod() == OdCmEntityColor::kByColor)
        return {color.colorMethod(), color.red() | color.green() << 8 | color.blue() << 16};
    return {color.colorMethod(), color.colorIndex()};
}

} // namespace

VnQtLaytransNewEditWgt::VnQtLaytransNewEditWgt(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("新图层"));
    setMinimumWidth(320);
}

bool VnQtLaytransNewEditWgt::initDialog()
{
    OkCancelHelp buttons;
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeForm());
    layout->addStretch();
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtLaytransNewEditWgt;
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_pbOkClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_pbhelpClicked);
    return true;
}

QFormLayout* VnQtLaytransNewEditWgt::makeForm()
{
    auto* form = new QFormLayout;
    const auto addRow = [&](QWidget* field, const char* label, const char* name, const char* help) {
        field->setObjectName(QLatin1String(name));
        field->setToolTip(help ? tr(help) : QString());
        form->addRow(tr(label), field);
    };
    m_name = new QLineEdit(this);
    m_linetype = new VnLineTypeComboBox(this);
    m_lineWidth = new VnLineWidthComboBox(this);
    m_color = new VnColorComboBox(this);
    m_transparency = new QComboBox(this);
    m_plotStyle = new QComboBox(this);
    addRow(m_name, QT_TR_NOOP("名称(&N)"), "nameEdit", QT_TR_NOOP("指定图层名。"));
    addRow(m_linetype, QT_TR_NOOP("线型(&L)"), "linetypeBox", QT_TR_NOOP("指定图层线型。"));
    addRow(m_lineWidth, QT_TR_NOOP("线宽(&W)"), "lineWidthBox", QT_TR_NOOP("指定图层线宽。"));
    addRow(m_color, QT_TR_NOOP("颜色(&C)"), "colorBox", QT_TR_NOOP("指定图层颜色。"));
    addRow(m_transparency, QT_TR_NOOP("透明度(&T)"), "transparencyBox", nullptr);
    addRow(
        m_plotStyle, QT_TR_NOOP("打印样式(&S)"), "plotStyleBox", QT_TR_NOOP("指定图层打印样式。"));
    return form;
}

bool VnQtLaytransNewEditWgt::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    const bool isEdit = data && data->GetDataB(transkey::kIsEdit);
    setWindowTitle(isEdit ? tr("编辑图层") : tr("新图层"));
    m_namesInUse = data && !isEdit ? data->GetDataJ(transkey::kNamesInUse) : VnJsonPtr();
    prepareCombos();
    if (const VnJsonPtr record = data ? data->GetDataJ(transkey::kInitRecord) : VnJsonPtr())
        prefill(TargetRecord(record));
    return true;
}

/// Removes the entries ByLayer and ByBlock, which make no sense for the properties of a layer.
void VnQtLaytransNewEditWgt::prepareCombos()
{
    removeEntries(*m_linetype, QStringLiteral("ByLayer"));
    removeEntries(*m_linetype, QStringLiteral("ByBlock"));
    removeWeight(*m_lineWidth, kWeightOfLayer);
    removeWeight(*m_lineWidth, kWeightOfBlock);
    if (m_lineWidth->count() > kFirstLineWidth + 1)
        m_lineWidth->setCurrentIndex(kFirstLineWidth);
    for (const OdInt16 index : kColorsOfOthers)
        removeColor(*m_color, index);
    if (m_color->count() > kFirstColor + 1)
        m_color->setCurrentIndex(kFirstColor);

    m_transparency->setEditable(true);
    m_transparency->setCompleter(nullptr); // Otherwise a typed 5 would be completed to 50.
    m_transparency->setInsertPolicy(QComboBox::NoInsert);
    m_transparency->clear();
    for (int value = 0; value <= kMostTransparent; value += kTransparencyStep)
        m_transparency->addItem(QString::number(value));
    m_transparency->setCurrentText(QStringLiteral("0"));

    m_plotStyle->clear();
    for (const char* style : kPlotStyles)
        addPlotStyle(*m_plotStyle, QString::fromUtf8(style));
    m_plotStyle->setCurrentText(QStringLiteral("ByLayer"));
    m_plotStyle->setEnabled(false);
}

void VnQtLaytransNewEditWgt::prefill(const TargetRecord& record)
{
    m_name->setText(record.name());
    m_name->selectAll(); // So that typing replaces it.
    showLinetype(record.linetype(), record.linetypeId());
    showLineWidth(record);
    m_transparency->setCurrentText(record.transparencyText());
    showPlotStyle(*m_plotStyle, record.plotStyle());
    showColor(record.color());
}

/// Selects the linetype with this id among those with the same name.
void VnQtLaytransNewEditWgt::showLinetype(const QString& name, OdInt64 id)
{
    showText(*m_linetype, name);
    const int first = m_linetype->currentIndex();
    for (int row = first; row < m_linetype->count(); ++row) {
        if (m_linetype->itemText(row).compare(name, Qt::CaseInsensitive) != 0)
            continue;
        m_linetype->setCurrentIndex(row);
        if (hostapi::numberOf(m_linetype->getCurrentLineType()) == id)
            return;
    }
    m_linetype->setCurrentIndex(first);
}

/// Selects the lineweight by its text, else by its value. A weight that is not offered is shown as
/// default.
void VnQtLaytransNewEditWgt::showLineWidth(const TargetRecord& record)
{
    const int row = m_lineWidth->findText(record.lineWidthText());
    if (row >= 0)
        m_lineWidth->setCurrentIndex(row);
    else if (record.hasLineWidth() && !showWeight(*m_lineWidth, record.lineWidth()))
        showWeight(*m_lineWidth, kUsualWeight);
}

void VnQtLaytransNewEditWgt::showColor(const LayerColor& color)
{
    if (color.method != OdCmEntityColor::kByACI && color.method != OdCmEntityColor::kByColor)
        return;
    const OdCmColor resolved = color.resolved();
    int row = m_color->FindColor(resolved);
    if (row < 0)
        row = m_color->AppendColorItem(resolved);
    m_color->setCurrentIndex(row);
}

bool VnQtLaytransNewEditWgt::acceptName(const QString& name) const
{
    if (name.isEmpty())
        return refuse(tr("名称必须赋值。"));
    if (name.front().isSpace() || name.back().isSpace() || nameFaults(name))
        return refuse(tr("名称不是有效符号名。"));
    if (isInUse(name))
        return refuse(
            tr("名称 %s 已在使用。\n您需要输入其他名称。").replace(QLatin1String("%s"), name));
    return true;
}

bool VnQtLaytransNewEditWgt::isInUse(const QString& name) const
{
    for (int i = 0, count = hostapi::count(m_namesInUse); i < count; ++i) {
        if (isSameName(vnutOdStringToQString(hostapi::textAt(m_namesInUse, i)), name))
            return true;
    }
    return false;
}

void VnQtLaytransNewEditWgt::slot_pbOkClicked()
{
    const QString name = m_name->text();
    if (!acceptName(name))
        return;
    const std::optional<int> transparency = transparencyOf(m_transparency->currentText());
    if (!transparency) {
        refuse(tr("请输入一个 0-90 之间的整数"));
        return;
    }
    if (data()) {
        data()->SetDataJ(transkey::kResult, makeResult(name, *transparency));
        data()->SetDataI("result", 1);
    }
    endDialog(1);
}

VnJsonPtr VnQtLaytransNewEditWgt::makeResult(const QString& name, int transparency) const
{
    using namespace transkey;
    const LayerColor color = packed(m_color->GetCurrentColorEx());
    VnJsonPtr result = hostapi::makeObject();
    result->SetDataSW(kResultName, vnutQStringToOdString(name));
    result->SetDataSW(kResultLinetype, m_linetype->getCurrentLineTypeString());
    result->SetDataL(kResultLinetypeId, hostapi::numberOf(m_linetype->getCurrentLineType()));
    result->SetDataI(kResultLineWidth, m_lineWidth->GetCurrentLineWeight());
    result->SetDataSW(kResultLineWidthText, vnutQStringToOdString(m_lineWidth->currentText()));
    result->SetDataL(kResultColorMethod, color.method);
    result->SetDataL(kResultColorValue, color.value);
    result->SetDataI(kResultTransparency, transparency);
    result->SetDataSW(
        kResultPlotStyle, vnutQStringToOdString(m_plotStyle->currentData().toString()));
    return result;
}

void VnQtLaytransNewEditWgt::slot_pbhelpClicked()
{
    vnqtShowHelp();
}

} // namespace vnsi
