#include "dialogbuttons.h"
#include "layertable.h"
#include "vnqtlayerqtablewgt.h"
#include "vnqtuidynlayercmdimpl.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace vnsi {

namespace {

struct ControllerButton
{
    LayerIcon icon;
    const char* objectName;
    const char* help;
};

/// In the order of the button ids.
constexpr ControllerButton kControllers[] = {
    {LayerIcon::NewLayer, "newLayerButton",
        QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerCmdImpl", "新建图层")},
    {LayerIcon::DeleteLayer, "deleteLayerButton",
        QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerCmdImpl", "删除图层")},
    {LayerIcon::SetCurrent, "setCurrentButton",
        QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerCmdImpl", "置为当前")},
};

} // namespace

VnQtUiDynLayerCmdImpl::VnQtUiDynLayerCmdImpl(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("图层特性管理器"));
    setMinimumWidth(645);
}

bool VnQtUiDynLayerCmdImpl::initDialog()
{
    m_currentLabel = new QLabel(tr("当前图层："), this);
    m_currentLabel->setObjectName(QStringLiteral("currentLayerLabel"));
    m_currentLabel->setTextFormat(Qt::PlainText);
    auto* currentRow = new QHBoxLayout;
    currentRow->addWidget(m_currentLabel);
    currentRow->addStretch();

    QBoxLayout* buttonRow = makeButtonRow();
    m_table = new VnQtLayerQTableWgt(this);
    m_table->setObjectName(QStringLiteral("layerTable"));
    m_table->setAccessibleName(tr("图层"));
    m_table->setTabKeyNavigation(false); // The Tab key moves on to the buttons.
    // Widths set by the user are kept even if no request follows; closing the dialog writes
    // nothing.
    layertable::whenUserSizes(*m_table, [this] { layertable::writeWidths(*m_table, data()); });
    // Otherwise the table would use the key for its search and the dialog would never receive it.
    m_deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), this);
    m_deleteKey->setAutoRepeat(false);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(currentRow);
    layout->addLayout(buttonRow);
    layout->addWidget(m_table);
    layout->addLayout(makeBottomRow());
    resize(1150, 560);
    return true;
}

QBoxLayout* VnQtUiDynLayerCmdImpl::makeButtonRow()
{
    auto* row = new QHBoxLayout;
    LayerCells cells;
    m_controllerGroup = new QButtonGroup(this);
    for (const ControllerButton& description : kControllers) {
        auto* button = new QPushButton(cells.icon(description.icon), QString(), this);
        button->setObjectName(QLatin1String(description.objectName));
        button->setToolTip(tr(description.help));
        button->setAccessibleName(tr(description.help));
        button->setAutoDefault(false);
        m_controllerGroup->addButton(button, m_controllerGroup->buttons().size());
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

QBoxLayout* VnQtUiDynLayerCmdImpl::makeBottomRow()
{
    const auto makeButton = [this](const QString& text, const char* objectName) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(objectName));
        button->setFixedSize(atLeastItsText(QSize(75, 21), *button));
        return button;
    };
    m_countLabel = new QLabel(tr("共  个图层"), this);
    m_countLabel->setObjectName(QStringLiteral("layerCountLabel"));
    m_okButton = makeButton(tr("确定"), "okButton");
    m_okButton->setDefault(true);
    m_cancelButton = makeButton(tr("取消"), "cancelButton");
    m_applyButton = makeButton(tr("应用"), "applyButton");
    m_applyButton->setEnabled(false);

    auto* row = new QHBoxLayout;
    row->addWidget(m_countLabel);
    row->addStretch();
    row->addWidget(m_okButton);
    row->addWidget(m_cancelButton);
    row->addWidget(m_applyButton);
    return row;
}

} // namespace vnsi
