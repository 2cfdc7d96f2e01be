#include "vnqtlaymrglayerdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostcodes.h"
#include "layerlistparts.h"
#include "layerrecord.h"
#include "layertoolkeys.h"
#include "namerule.h"
#include "vnstrings.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace vnsi {

VnQtLaymrgLayerDlg::VnQtLaymrgLayerDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setMinimumWidth(400);
}

bool VnQtLaymrgLayerDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    readTree();
    if (!m_list)
        buildLayout();
    fill();
    return true;
}

void VnQtLaymrgLayerDlg::readTree()
{
    const LayerRecordList layers = LayerRecordList::of(data());
    const LayerRecord first = layers[0];
    if (!m_list) // The layout is built for one of the modes, so the first tree decides.
        m_sourceMode = first.flag(layertoolkey::kIsFrom);
    m_blockReferences = first.number(layertoolkey::kBlockReferences);
    m_names.clear();
    m_sources.clear();
    for (const LayerRecord& record : layers) {
        m_names.append(vnutOdStringToQString(record.name()));
        if (!m_sourceMode && record.flag(layertoolkey::kSourceLayer))
            m_sources.append(m_names.last());
    }
}

void VnQtLaymrgLayerDlg::buildLayout()
{
    setWindowTitle(m_sourceMode ? tr("合并图层") : tr("合并到图层"));
    auto* label = new QLabel(m_sourceMode ? tr("要合并的图层: ") : tr("目标图层: "), this);
    if (!m_sourceMode)
        m_targetEdit = layerlist::makeNameEdit(*this);
    m_list = layerlist::makeList(*this);
    label->setBuddy(m_targetEdit ? static_cast<QWidget*>(m_targetEdit) : m_list);
    m_list->setAccessibleName(m_targetEdit ? tr("现有图层") : QString());
    m_list->setSelectionMode(
        m_sourceMode ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    OkCancelHelp buttons;

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    if (m_targetEdit)
        layout->addWidget(m_targetEdit);
    layout->addWidget(m_list);
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtLaymrgLayerDlg;
    connect(m_list, &QListWidget::currentItemChanged, this, &Self::slot_LayerListItemClicked);
    connect(m_list, &QListWidget::itemClicked, this, &Self::slot_LayerListItemClicked);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &Self::slot_LayerListItemDoubleClicked);
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_SureBtnClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
}

void VnQtLaymrgLayerDlg::fill()
{
    m_list->clear();
    m_list->addItems(m_names);
    m_list->setCurrentRow(0);
    layerlist::copyText(m_list->item(0), m_targetEdit);
}

void VnQtLaymrgLayerDlg::slot_LayerListItemClicked(QListWidgetItem* item)
{
    layerlist::copyText(item, m_targetEdit);
}

void VnQtLaymrgLayerDlg::slot_LayerListItemDoubleClicked(QListWidgetItem* item)
{
    slot_LayerListItemClicked(item);
    slot_SureBtnClicked(false);
}

void VnQtLaymrgLayerDlg::slot_SureBtnClicked(bool)
{
    const QSet<QString> selected = layerlist::selectedNames(*m_list);
    if (selected.isEmpty())
        return;
    if (m_sourceMode) {
        layerlist::mark(LayerRecordList::of(data()), selected, kLayerMergeSource);
    } else {
        const QString target = m_targetEdit->text();
        if (!acceptTarget(target))
            return;
        // The mark is written before the question and stays when the user declines; this is
        // intended.
        markTarget(target);
        if (!confirm(target))
            return;
    }
    endDialog(1);
}

bool VnQtLaymrgLayerDlg::acceptTarget(const QString& target) const
{
    if (holdsForbiddenCharacter(target))
        return layerlist::refuse(
            tr("\n名称 包含不支持的字符。\n\n\n不支持以下字符:  \\<>/\":;?*|,=`"),
            tr("图层-不支持的字符"));
    if (!m_names.contains(target))
        return layerlist::refuse(tr("图层名无效"), kProductName);
    if (target.isEmpty())
        return layerlist::refuse(tr("\n\n图层名至少必须包含一个字符。"), tr("图层名无效。"));
    return true;
}

void VnQtLaymrgLayerDlg::markTarget(const QString& target)
{
    LayerRecord record = LayerRecordList::of(data())[m_names.indexOf(target)];
    record.setStatus(kLayerMergeTarget);
    record.markModifiedByAction();
}

bool VnQtLaymrgLayerDlg::confirm(const QString& target) const
{
    const int count = m_sources.size();
    const QString what = count < 2 ? tr("\n将要把图层 %1 合并到图层").arg(m_sources.value(0))
                                   : tr("\n将要把 %1 个图层合并到图层").arg(count);
    const QString ending = m_blockReferences < 1
                               ? tr("。\n\n是否继续？")
                               : tr("。\n将重定义已合并图层中参照的所用块。\n\n是否继续？");
    const QString text = what + QLatin1Char(' ') + target + ending;
    return layerlist::confirm(tr("合并到图层"), text, kVnYesNo, kVnAnswerYes);
}

void VnQtLaymrgLayerDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
