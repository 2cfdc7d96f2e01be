#include "vnqtlaymchlayerdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostcodes.h"
#include "layerlistparts.h"
#include "layerrecord.h"
#include "layertoolkeys.h"
#include "moduletexts.h"
#include "namerule.h"
#include "vnstrings.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vnsi {

namespace {

bool refuseCharacters()
{
    return layerlist::refuse(
        Texts::tr("\n名称 包含不支持的字符。\n\n\n不支持以下字符:\n  \\<>/\":;?*|,=`"),
        Texts::tr("图层-不支持的字符"));
}

bool acceptName(const QString& name)
{
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    if (std::all_of(name.begin(), name.end(), isSpace))
        return layerlist::refuse(
            Texts::tr("\n图层名至少必须包含一个字符。"), Texts::tr("图层名无效"));
    // A blank is refused like the thirteen characters, although the message does not list it.
    if (std::any_of(name.begin(), name.end(), isSpace) || holdsForbiddenCharacter(name))
        return refuseCharacters();
    return true;
}

/// Checks a new name. Existing layers may have names that a new one must not have.
bool acceptNewName(const QString& name)
{
    const NameFaults faults = nameFaults(name);
    if (faults & NameFault::ControlCharacter)
        return refuseCharacters();
    return !(faults & NameFault::TooLong) ||
           layerlist::refuse(
               Texts::tr("\n图层名最多只能包含 255 个字符。"), Texts::tr("图层名无效"));
}

} // namespace

VnQtLaymchLayerDlg::VnQtLaymchLayerDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("更改到图层"));
    setMinimumWidth(400);
}

bool VnQtLaymchLayerDlg::initDialog()
{
    auto* label = new QLabel(tr("目标图层: "), this);
    m_nameEdit = layerlist::makeNameEdit(*this);
    label->setBuddy(m_nameEdit);
    m_list = layerlist::makeList(*this);
    m_list->setAccessibleName(tr("现有图层"));
    auto* choice = new QVBoxLayout;
    choice->addWidget(m_nameEdit);
    choice->addWidget(m_list);
    OkCancelHelp buttons;

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(choice);
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtLaymchLayerDlg;
    connect(m_list, &QListWidget::currentItemChanged, this, &Self::slot_LayerListItemClicked);
    connect(m_list, &QListWidget::itemClicked, this, &Self::slot_LayerListItemClicked);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &Self::slot_LayerListItemDoubleClicked);
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_SureBtnClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
    return true;
}

bool VnQtLaymchLayerDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    layerlist::fill(*m_list, LayerRecordList::of(canRequest() ? data : VnJsonPtr()));
    layerlist::copyText(m_list->item(0), m_nameEdit);
    return true;
}

void VnQtLaymchLayerDlg::slot_LayerListItemClicked(QListWidgetItem* item)
{
    layerlist::copyText(item, m_nameEdit);
}

void VnQtLaymchLayerDlg::slot_LayerListItemDoubleClicked(QListWidgetItem* item)
{
    slot_LayerListItemClicked(item);
    slot_SureBtnClicked(false);
}

void VnQtLaymchLayerDlg::slot_SureBtnClicked(bool)
{
    const QString name = m_nameEdit->text();
    if (!acceptName(name))
        return;
    if (isKnown(name)) {
        // The look-up ignores letter case but the marking does not; this is intended.
        layerlist::mark(LayerRecordList::of(data()), {name}, kLayerTarget);
    } else {
        if (!acceptNewName(name) || !confirmNewLayer(name))
            return;
        markNewLayer(name);
    }
    endDialog(1);
}

bool VnQtLaymchLayerDlg::isKnown(const QString& name) const
{
    const LayerRecordList layers = LayerRecordList::of(data());
    return std::any_of(layers.begin(), layers.end(), [&name](const LayerRecord& layer) {
        return isSameName(vnutOdStringToQString(layer.name()), name);
    });
}

bool VnQtLaymchLayerDlg::confirmNewLayer(const QString& name) const
{
    const QString text = tr("\n图层\"") + name + tr("\"不存在。\n是否创建它？");
    return layerlist::confirm(tr("是否创建图层？"), text, kVnYesNo, kVnAnswerYes);
}

/// Writes the request for a new layer into the last record of the list, where commands expect it.
void VnQtLaymchLayerDlg::markNewLayer(const QString& name)
{
    const LayerRecordList layers = LayerRecordList::of(data());
    LayerRecord last = layers[layers.count() - 1];
    if (last.isNull() || vnutOdStringToQString(last.name()) == name)
        return;
    last.setStatus(kLayerNewTarget);
    last.setText(layertoolkey::kNewLayer, vnutQStringToOdString(name));
    last.markModifiedByAction();
}

void VnQtLaymchLayerDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
