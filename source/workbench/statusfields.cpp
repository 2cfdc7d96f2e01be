#include "statusfields.h"

#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

StatusFields::StatusFields(QWidget* parent) : QStatusBar(parent)
{
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("workProgress"));
    m_bar->setMaximumWidth(220);
    m_cancel = new QToolButton(this);
    m_cancel->setObjectName(QStringLiteral("workCancel"));
    m_cancel->setText(tr("取消"));
    m_cancel->setToolTip(tr("停止正在进行的操作"));
    addPermanentWidget(m_bar);
    addPermanentWidget(m_cancel);
    m_space = new QToolButton(this);
    m_space->setObjectName(QStringLiteral("spaceSwitch"));
    m_space->setToolTip(tr("在模型空间和布局之间切换"));
    m_space->setAutoRaise(true);
    addPermanentWidget(m_space);
    m_cursor = addField(QStringLiteral("cursorField"), QStringLiteral("-000000.000, -000000.000"));
    m_selected = addField(QStringLiteral("selectionField"), {});
    m_current = addField(QStringLiteral("currentLayerField"), {});
    m_count = addField(QStringLiteral("layerCountField"), {});
    hideWork();
    showLayers(nullptr);
    connect(m_cancel, &QToolButton::clicked, this, &StatusFields::cancelClicked);
    connect(m_space, &QToolButton::clicked, this, &StatusFields::spaceClicked);
}

QLabel* StatusFields::addField(const QString& name, const QString& widest)
{
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest));
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(8, 0, 8, 0);
    addPermanentWidget(label);
    return label;
}

void StatusFields::showLayers(const drawing::Drawing* drawing)
{
    const drawing::Layer* current = drawing ? drawing->layer(drawing->currentLayer()) : nullptr;
    constexpr int kWidestName = 240;
    const QString name = current ? m_current->fontMetrics().elidedText(
                                       current->properties.name, Qt::ElideMiddle, kWidestName)
                                 : QString();
    m_current->setText(current ? tr("当前图层: %1").arg(name) : QString());
    m_space->setText(!drawing || drawing->isModelSpace() ? tr("模型") : tr("布局"));
    m_space->setEnabled(drawing != nullptr);
    m_count->setText(drawing ? tr("%1 个图层").arg(drawing->layers().size()) : QString());
}

void StatusFields::showSelection(int count)
{
    m_selected->setText(count > 0 ? tr("已选择 %1 个对象").arg(count) : QString());
}

void StatusFields::showCursor(const QPointF& point)
{
    m_cursor->setText(QStringLiteral("%1, %2").arg(point.x(), 0, 'f', 3).arg(point.y(), 0, 'f', 3));
}

void StatusFields::showWork(const QString& what)
{
    m_bar->setValue(0);
    m_bar->show();
    m_cancel->show();
    showMessage(what);
}

void StatusFields::showProgress(int percent)
{
    m_bar->setValue(percent);
}

void StatusFields::hideWork()
{
    m_bar->hide();
    m_cancel->hide();
    clearMessage();
}
