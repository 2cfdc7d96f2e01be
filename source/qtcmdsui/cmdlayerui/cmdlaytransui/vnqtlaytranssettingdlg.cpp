#include "vnqtlaytranssettingdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostapi/hosttree.h"
#include "translatorkeys.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace vnsi {

namespace {

struct OptionRow
{
    const char* text;
    const char* help;
};

// One option has no mnemonic; its text is agreed.
constexpr OptionRow kOptions[] = {
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "强制对象颜色为 ByLayer(&C)"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt",
            "指定每一个已转换对象是否采用指定给其图层的颜色。如果选定该选项，每个对象将呈现\n"
            "各自图层的颜色。如果不选择该选项，每个对象将保持其初始颜色。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "强制对象线型为 ByLayer(&L)"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt",
            "指定每一个已转换对象是否采用指定给其图层的线型。如果选择该选项，每个对象将呈现\n"
            "各自图层的线型。如果不选择该选项，每个对象将保持其初始线型。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "强制对象透明度为 ByLayer"),
        QT_TRANSLATE_NOOP(
            "vnsi::VnQtLaytransSettingWgt", "指定每一个已转换对象是否采用指定给其图层的透明度。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "转换块中的对象(&T)"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt",
            "指定是否转换块中嵌套的对象。如果选择该选项，块中嵌套的对象将转换。如果不选\n"
            "择该选项，块中嵌套的对象将不转换。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "写入转换日志(&W)"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt",
            "指定是否创建详细说明转换结果的日志文件。如果选择该选项，将在与转换图形相同的\n"
            "文件夹中创建日志文件。为该日志文件指定的名称与已转换的图形的名称相同，文件\n"
            "扩展名为 .log。如果不选择“写入转换日志”选项，将不创建日志文件。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt", "选定时显示图层内容(&S)"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaytransSettingWgt",
            "指定将在绘图区域中显示的图层。如果选择此选项，仅在绘图区域中显示那些在“图层转换器”\n"
            "对话框中选择的图层。如果不选择此选项，将显示图形中的所有图层。")},
};
static_assert(std::size(kOptions) == kTranslatorOptionCount);

} // namespace

VnQtLaytransSettingWgt::VnQtLaytransSettingWgt(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("设置"));
    setMinimumSize(300, 230);
}

bool VnQtLaytransSettingWgt::initDialog()
{
    auto* layout = new QVBoxLayout(this);
    for (const OptionRow& option : kOptions) {
        auto* box = new QCheckBox(tr(option.text), this);
        box->setObjectName(QStringLiteral("optionBox%1").arg(m_boxes.size()));
        box->setToolTip(tr(option.help));
        layout->addWidget(box);
        m_boxes.push_back(box);
    }
    OkCancelHelp buttons;
    layout->addStretch();
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtLaytransSettingWgt;
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_pbOkClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_pbhelpClicked);
    return true;
}

bool VnQtLaytransSettingWgt::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    const VnJsonPtr settings = data ? data->GetDataJ(transkey::kSettingsIn) : VnJsonPtr();
    if (hostapi::count(settings) != kTranslatorOptionCount)
        return true;
    int option = 0;
    for (QCheckBox* box : m_boxes) {
        const VnJsonPtr setting = hostapi::item(settings, option++);
        box->setChecked(setting && setting->GetDataB(transkey::kSetting));
    }
    return true;
}

void VnQtLaytransSettingWgt::slot_pbOkClicked()
{
    const VnJsonPtr settings = hostapi::makeArray(kTranslatorOptionCount);
    for (const QCheckBox* box : m_boxes) {
        const VnJsonPtr setting = hostapi::makeObject();
        setting->SetDataB(transkey::kSetting, box->checkState() == Qt::Checked);
        hostapi::append(settings, setting);
    }
    if (data()) {
        data()->SetDataJ(transkey::kSettingsOut, settings);
        data()->SetDataI("result", 1);
    }
    endDialog(1);
}

void VnQtLaytransSettingWgt::slot_pbhelpClicked()
{
    vnqtShowHelp();
}

} // namespace vnsi
