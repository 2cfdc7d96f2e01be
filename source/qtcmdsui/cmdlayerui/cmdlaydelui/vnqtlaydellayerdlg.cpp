#include "vnqtlaydellayerdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostcodes.h"
#include "layerlistparts.h"
#include "layerrecord.h"
#include "layertoolkeys.h"
#include "vnstrings.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace vnsi {

namespace {

/// Indexed by whether a layer is referenced in blocks, and by whether there are several layers.
constexpr const char* kQuestions[2][2] = {
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaydelLayerDlg",
         "图层 %1 将被删除。\n\n此图层上的所有对象或参照此图层的所有对象都将被删除。"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaydelLayerDlg",
            "%1 图层将被删除。\n\n这些图层上的所有对象或参照这些图层的所有对象都将被删除。")},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaydelLayerDlg",
         "将要删除的图层“%1”，该图层在块中被参照。\n将要删除该图层上的所有对象并重定义已参照"
         "的块。\n\n是否继续？"),
        QT_TRANSLATE_NOOP("vnsi::VnQtLaydelLayerDlg",
            "将要删除 %1 个图层，其中某些图层在块中被参照。\n将要删除该图层上的所有对象并重定"
            "义已参照的块。\n\n是否继续？")},
};

} // namespace

VnQtLaydelLayerDlg::VnQtLaydelLayerDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("删除图层"));
    setMinimumWidth(400);
}

bool VnQtLaydelLayerDlg::initDialog()
{
    auto* label = new QLabel(tr("要删除的图层: "), this);
    m_list = layerlist::makeList(*this);
    label->setBuddy(m_list);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* listBox = new QHBoxLayout;
    listBox->setMargin(15);
    listBox->addWidget(m_list);
    OkCancelHelp buttons;

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(listBox);
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtLaydelLayerDlg;
    connect(m_list, &QListWidget::itemDoubleClicked, this, &Self::slot_LayerListItemDoubleClicked);
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_SureBtnClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
    return true;
}

bool VnQtLaydelLayerDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    layerlist::fill(*m_list, LayerRecordList::of(canRequest() ? data : VnJsonPtr()));
    return true;
}

bool VnQtLaydelLayerDlg::isReferencedInBlocks(const QSet<QString>& names)
{
    const auto markSelected = [&](IElementValueBase& tree) {
        for (LayerRecord record : LayerRecordList(tree.GetDataJ(layerkey::kList)))
            record.setFlag(
                layerkey::kIsSelected, names.contains(vnutOdStringToQString(record.name())));
    };
    return askCommand({kDeleteAskBlocks, {layertoolkey::kIsExistBlock}}, markSelected)
        ->GetDataB(layertoolkey::kIsExistBlock);
}

QString VnQtLaydelLayerDlg::question(bool inBlocks, int count, const QString& single) const
{
    const QString text = tr(kQuestions[inBlocks][count > 1]);
    return count > 1 ? text.arg(count) : text.arg(single);
}

void VnQtLaydelLayerDlg::slot_LayerListItemDoubleClicked(QListWidgetItem*)
{
    slot_SureBtnClicked(false);
}

void VnQtLaydelLayerDlg::slot_SureBtnClicked(bool)
{
    const QList<QListWidgetItem*> items = m_list->selectedItems();
    if (items.isEmpty())
        return;
    const QSet<QString> names = layerlist::selectedNames(*m_list);
    const bool inBlocks = isReferencedInBlocks(names);
    const QString text = question(inBlocks, items.size(), items.first()->text());
    if (!layerlist::confirm(tr("图层删除 - 删除确认"), text, kVnOkCancel, kVnAnswerOk))
        return;
    layerlist::mark(LayerRecordList::of(data()), names, kLayerDelete);
    endDialog(1);
}

void VnQtLaydelLayerDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
