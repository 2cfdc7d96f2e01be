#include "statusfields.h"

#include <QLabel>
#include <QMenu>
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
    m_space = makeSpaceSwitch();
    addPermanentWidget(m_space);
    m_viewport = addField(QStringLiteral("viewportField"), {});
    m_cursor = addField(QStringLiteral("cursorField"), QStringLiteral("-000000.000, -000000.000"));
    m_selected = addField(QStringLiteral("selectionField"), {});
    m_current = addField(QStringLiteral("currentLayerField"), {});
    m_count = addField(QStringLiteral("layerCountField"), {});
    hideWork();
    showLayers(nullptr);
    connect(m_cancel, &QToolButton::clicked, this, &StatusFields::cancelClicked);
}

/// The button switches between model space and the layout; its menu lists all layouts.
QToolButton* StatusFields::makeSpaceSwitch()
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("spaceSwitch"));
    button->setToolTip(tr("在模型空间和布局之间切换"));
    button->setAutoRaise(true);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    m_spaces = new QMenu(button);
    m_spaces->setObjectName(QStringLiteral("spaceMenu"));
    button->setMenu(m_spaces);
    connect(button, &QToolButton::clicked, this, [this] { emit spaceChosen(m_otherSpace); });
    // Queued, because showing another space rebuilds the menu.
    connect(
        m_spaces, &QMenu::triggered, this,
        [this](QAction* action) { emit spaceChosen(action->data().toInt()); },
        Qt::QueuedConnection);
    return button;
}

void StatusFields::addSwitch(QAction* action, const QString& title)
{
    auto* button = new QToolButton(this);
    button->setObjectName(action->objectName() + QStringLiteral("Switch"));
    button->setDefaultAction(action);
    button->setText(title);
    button->setAutoRaise(true);
    insertPermanentWidget(2, button); // After the fields for long work.
    connect(action, &QAction::changed, button, [button, title] { button->setText(title); });
}

void StatusFields::showSpaces(const drawing::Drawing* drawing)
{
    m_spaces->clear();
    m_space->setEnabled(drawing != nullptr);
    m_space->setText(tr("模型"));
    if (!drawing)
        return;
    const int shown = drawing->isModelSpace() ? kModelSpace : drawing->shownLayout();
    m_otherSpace = drawing->isModelSpace() ? drawing->shownLayout() : kModelSpace;
    addSpace(tr("模型"), kModelSpace, shown);
    int index = 0;
    for (const drawing::Layout& layout : drawing->layouts())
        addSpace(layout.name.isEmpty() ? tr("布局") : layout.name, index++, shown);
}

void StatusFields::addSpace(const QString& title, int space, int shown)
{
    constexpr int kWidestName = 160;
    const QString label = QString(title).replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* const action = m_spaces->addAction(label);
    action->setData(space);
    action->setCheckable(true);
    action->setChecked(space == shown);
    if (space == shown)
        m_space->setText(m_space->fontMetrics().elidedText(label, Qt::ElideMiddle, kWidestName));
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
    showSpaces(drawing);
    m_count->setText(drawing ? tr("%1 个图层").arg(drawing->layers().size()) : QString());
}

void StatusFields::showViewport(bool isInside)
{
    m_viewport->setText(isInside ? tr("视口内") : QString());
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
    showWorkMessage(what);
}

void StatusFields::showWait(const QString& what)
{
    m_bar->setRange(0, 0);
    m_bar->show();
    showWorkMessage(what);
}

void StatusFields::showWorkMessage(const QString& what)
{
    m_workMessage = what;
    showMessage(what);
}

void StatusFields::showProgress(int percent)
{
    m_bar->setValue(percent);
}

void StatusFields::hideWork()
{
    m_bar->hide();
    m_bar->setRange(0, 100);
    m_cancel->hide();
    if (currentMessage() == m_workMessage) // Otherwise it already tells what came of the work.
        clearMessage();
}
