#include "vnqtaddnewlayerdlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostapi/hosttree.h"
#include "layercells.h"
#include "moduletexts.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace vnsi {

namespace {

constexpr LayerColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("cmdlayerui", "名称"), LayerCell::Text, layerkey::kName},
    {QT_TRANSLATE_NOOP("cmdlayerui", "说明"), LayerCell::Text, layerkey::kDescription},
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));

} // namespace

VnQtAddNewLayerDlg::VnQtAddNewLayerDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("选择要添加到图层状态的图层"));
    setMinimumWidth(345);
}

bool VnQtAddNewLayerDlg::initDialog()
{
    m_table = new QTableWidget(0, kColumnCount, this);
    m_table->setObjectName(QStringLiteral("candidateTable"));
    m_table->setAccessibleName(Texts::tr("可添加的图层"));
    m_table->setHorizontalHeaderLabels(
        {Texts::tr(kColumns[0].header), Texts::tr(kColumns[1].header)});
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    OkCancelHelp buttons;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(makeButtonRow(*this, buttons));

    using Self = VnQtAddNewLayerDlg;
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_SureBtnClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
    return true;
}

bool VnQtAddNewLayerDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    fill();
    return true;
}

VnJsonPtr VnQtAddNewLayerDlg::candidates() const
{
    return data() ? data()->GetDataJ(statekey::kCandidates) : VnJsonPtr();
}

void VnQtAddNewLayerDlg::fill()
{
    const VnJsonPtr list = candidates();
    std::vector<LayerRecord> records;
    for (int i = 0, count = hostapi::count(list); i < count; ++i)
        records.emplace_back(hostapi::item(list, i));
    LayerCells().fill(*m_table, records, kColumns, kColumnCount);
    m_table->clearSelection();
}

void VnQtAddNewLayerDlg::slot_SureBtnClicked(bool)
{
    QSet<QString> chosen;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        for (int row = range.topRow(); row <= range.bottomRow(); ++row)
            chosen.insert(m_table->item(row, 0)->text());
    }
    // The array is emptied from its end and filled again, because removing single entries from the
    // middle would take quadratic time.
    const VnJsonPtr list = candidates();
    std::vector<VnJsonPtr> kept;
    for (int i = hostapi::count(list) - 1; i >= 0; --i) {
        const VnJsonPtr layer = hostapi::item(list, i);
        if (chosen.contains(vnutOdStringToQString(LayerRecord(layer).name())))
            kept.push_back(layer);
        hostapi::removeItem(list, i);
    }
    std::for_each(kept.rbegin(), kept.rend(),
        [&list](const VnJsonPtr& layer) { hostapi::append(list, layer); });
    endDialog(1);
}

void VnQtAddNewLayerDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
