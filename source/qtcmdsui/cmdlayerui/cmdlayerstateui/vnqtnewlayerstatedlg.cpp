#include "vnqtnewlayerstatedlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "namerule.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace vnsi {

namespace {

enum Replace { kClosed = -1, kReplace = 0, kKeep = 1 };

} // namespace

VnQtNewLayerStateDlg::VnQtNewLayerStateDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("要保存的新图层状态"));
    setMinimumWidth(345);
}

bool VnQtNewLayerStateDlg::initDialog()
{
    auto* nameLabel = new QLabel(tr("新图层状态(L):"), this);
    m_name = new QComboBox(this);
    m_name->setObjectName(QStringLiteral("nameBox"));
    m_name->setEditable(true);
    nameLabel->setBuddy(m_name);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->setCompleter(nullptr); // It would complete new names to existing ones.
    auto* descriptionLabel = new QLabel(tr("说明(D):"), this);
    m_description = new QTextEdit(this);
    m_description->setObjectName(QStringLiteral("descriptionEdit"));
    m_description->setAcceptRichText(false);
    descriptionLabel->setBuddy(m_description);
    OkCancelHelp buttons;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(nameLabel);
    layout->addWidget(m_name);
    layout->addWidget(descriptionLabel);
    layout->addWidget(m_description);
    layout->addLayout(makeButtonRow(*this, buttons));
    m_ok = buttons.ok;

    using Self = VnQtNewLayerStateDlg;
    connect(m_name, &QComboBox::editTextChanged, this, &Self::slot_ComboBoxEditTextChanged);
    connect(m_ok, &QPushButton::clicked, this, &Self::slot_SureBtnClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
    return true;
}

bool VnQtNewLayerStateDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    fill();
    m_description->setTabChangesFocus(true);
    connect(m_name, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &VnQtNewLayerStateDlg::slot_ComboBoxCurrentIndexChanged, Qt::UniqueConnection);
    return true;
}

VnJsonPtr VnQtNewLayerStateDlg::states() const
{
    return layerstates::list(data());
}

void VnQtNewLayerStateDlg::fill()
{
    m_description->clear();
    m_name->clear();
    m_ok->setEnabled(false);
    const VnJsonPtr all = states();
    for (int i = 0, count = hostapi::count(all); i < count; ++i) {
        const VnJsonPtr state = hostapi::item(all, i);
        m_name->addItem(layerstates::text(state, statekey::kName),
            layerstates::text(state, statekey::kDescription));
    }
    // No entry is selected, so that selecting the first one is also a change.
    m_name->setCurrentIndex(-1);
    m_name->clearEditText();
    m_name->setFocus();
    m_name->setToolTip(tr("为要保存的新图层状态指定名称。"));
    m_description->setToolTip(tr("（可选）提供图层状态管理器中显示的图层状态说明。"));
}

void VnQtNewLayerStateDlg::slot_ComboBoxEditTextChanged(const QString& text)
{
    m_ok->setEnabled(!text.trimmed().isEmpty());
}

void VnQtNewLayerStateDlg::slot_ComboBoxCurrentIndexChanged(int index)
{
    m_description->setPlainText(m_name->itemData(index).toString());
}

void VnQtNewLayerStateDlg::correctName()
{
    m_name->setFocus();
    m_name->lineEdit()->selectAll();
}

bool VnQtNewLayerStateDlg::acceptCharacters(const QString& name)
{
    if (!holdsForbiddenCharacter(name))
        return true;
    layerstates::ask(
        layerstates::badCharactersCaption(), layerstates::badCharactersText(), {tr("关闭(&C)")}, 0);
    correctName();
    return false;
}

bool VnQtNewLayerStateDlg::acceptReplacing(const QString& name)
{
    const VnJsonPtr all = states();
    for (int i = 0, count = hostapi::count(all); i < count; ++i) {
        const VnJsonPtr state = hostapi::item(all, i);
        if (!isSameName(name, layerstates::text(state, statekey::kName)))
            continue;
        const QString text = tr("%1 已经存在。是否替换?").arg(name);
        const int answer =
            layerstates::ask(tr("图层状态 - 已经存在"), text, {tr("替换"), tr("取消")}, kClosed);
        if (answer == kKeep || answer == kClosed) {
            correctName();
            return false;
        }
        if (answer == kReplace && layerstates::isFromReference(state)) {
            hostapi::messageBox(tr("无法保存图层状态。"), kProductName, kVnOk);
            return false;
        }
        return true;
    }
    return true;
}

void VnQtNewLayerStateDlg::slot_SureBtnClicked(bool)
{
    const QString name = m_name->currentText().trimmed();
    if (!acceptCharacters(name) || !acceptReplacing(name))
        return;
    hostapi::Members(data())
        .set(statekey::kNewName, vnutQStringToOdString(name))
        .set(statekey::kDescription, vnutQStringToOdString(m_description->toPlainText()))
        .set("result", int{kVnAnswerOk});
    endDialog(kVnAnswerOk);
}

void VnQtNewLayerStateDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
