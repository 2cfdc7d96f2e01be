#include "useslist.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize kSize(460, 320);

} // namespace

UsesList::UsesList(const QStringList& heads, const std::vector<QStringList>& lines,
    const QString& title, QWidget* parent)
    : QDialog(parent),
      m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("usesList"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_list->setObjectName(QStringLiteral("usesTable"));
    m_list->setAccessibleName(title);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels(heads);
    for (const QStringList& line : lines)
        m_list->addTopLevelItem(new QTreeWidgetItem(line));
    for (int column = 0; column + 1 < heads.size(); ++column)
        m_list->resizeColumnToContents(column);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("关闭(&C)"), QDialogButtonBox::RejectRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(kSize);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
}

UsesList* UsesList::ofUses(std::vector<LayerUse> uses, const QString& title, QWidget* parent)
{
    std::vector<QStringList> lines;
    lines.reserve(uses.size());
    for (const LayerUse& use : uses)
        lines.push_back({use.kind, QString::number(use.entities.size()), use.place});
    auto* const list = new UsesList({tr("对象"), tr("数量"), tr("所在位置")}, lines, title, parent);
    const auto choose = [list, uses = std::move(uses)](const QTreeWidgetItem* item) {
        const int at = list->m_list->indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(item));
        emit list->chosen(uses[static_cast<size_t>(at)]);
    };
    connect(list->m_list, &QTreeWidget::itemClicked, list, choose);
    connect(list->m_list, &QTreeWidget::itemActivated, list, choose);
    return list;
}

UsesList* UsesList::ofReasons(
    const std::vector<QStringList>& lines, const QString& title, QWidget* parent)
{
    return new UsesList({tr("图层"), tr("保留的原因")}, lines, title, parent);
}
