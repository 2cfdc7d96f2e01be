#include "filterpane.h"

#include "filterexpression.h"
#include "filtertree.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

using drawing::Drawing;
using drawing::LayerId;

namespace {

/// A filter that every drawing has. In place of a record's handle it is identified by
/// `kPlainRecord` plus its index.
struct PlainFilter
{
    const char* name;
    bool (*passes)(const LayerRow& row); ///< Null lets all layers pass.
};

bool isUsed(const LayerRow& row)
{
    return row.layer().used();
}

bool isUnused(const LayerRow& row)
{
    return !row.layer().used();
}

bool isOfReference(const LayerRow& row)
{
    return row.layer().dependsOnReference;
}

constexpr PlainFilter kPlain[] = {
    {QT_TRANSLATE_NOOP("FilterPane", "全部图层"), nullptr},
    {QT_TRANSLATE_NOOP("FilterPane", "使用中的图层"), isUsed},
    {QT_TRANSLATE_NOOP("FilterPane", "未使用的图层"), isUnused},
    {QT_TRANSLATE_NOOP("FilterPane", "外部参照的图层"), isOfReference},
};
/// The highest bit, which no handle of a record uses.
constexpr quint64 kPlainRecord = quint64(1) << 63;

bool isPlain(quint64 record)
{
    return (record & kPlainRecord) != 0;
}

/// The pattern for whole names that corresponds to a typed search.
QString patternOf(const QString& typed)
{
    const QString text = typed.trimmed();
    const bool isPattern = text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?'));
    return text.isEmpty() || isPattern ? (text.isEmpty() ? QStringLiteral("*") : text)
                                       : QStringLiteral("*%1*").arg(text);
}

bool isSame(const drawing::LayerFilter& a, const drawing::LayerFilter& b)
{
    return a.record == b.record && a.parent == b.parent && a.kind == b.kind && a.name == b.name &&
           a.expression == b.expression && a.layers == b.layers;
}

} // namespace

FilterPane::FilterPane(LayerEditor* editor, QWidget* parent)
    : QWidget(parent),
      m_editor(editor),
      m_tree(new FilterTree(this)),
      m_expression(new QLineEdit(this))
{
    m_expression->setObjectName(QStringLiteral("filterExpression"));
    m_expression->setAccessibleName(tr("过滤器表达式"));
    m_expression->setPlaceholderText(QStringLiteral("NAME == \"A-*\" and LOCKED == \"FALSE\""));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_expression);
    fill();
    choose();

    connect(m_tree, &QTreeWidget::currentItemChanged, this, &FilterPane::choose);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &FilterPane::showMenu);
    connect(m_tree, &FilterTree::layersDropped, this, &FilterPane::drop);
    // Queued, because the tree is filled again and its editor must close first.
    connect(m_tree, &FilterTree::renamed, this, &FilterPane::rename, Qt::QueuedConnection);
    connect(m_expression, &QLineEdit::editingFinished, this, &FilterPane::setExpression);
}

void FilterPane::follow()
{
    const Drawing* const drawing = m_editor->drawing();
    std::vector<Filter> now = drawing ? drawing->layerFilters() : std::vector<Filter>();
    if (std::equal(now.begin(), now.end(), m_filters.begin(), m_filters.end(), isSame))
        return;
    m_filters = std::move(now);
    fill();
    choose();
}

const FilterPane::Filter* FilterPane::find(quint64 record) const
{
    const auto found = std::find_if(m_filters.begin(), m_filters.end(),
        [record](const Filter& filter) { return filter.record == record; });
    return found == m_filters.end() ? nullptr : &*found;
}

void FilterPane::fill()
{
    std::vector<FilterTree::Entry> entries;
    quint64 record = kPlainRecord;
    for (const PlainFilter& plain : kPlain) {
        FilterTree::Entry entry;
        entry.record = record++;
        entry.name = tr(plain.name);
        entries.push_back(entry);
    }
    for (const Filter& filter : m_filters) {
        const bool isGroup = filter.kind == Filter::Kind::Group;
        const bool isUsable =
            isGroup || (filter.kind == Filter::Kind::Property &&
                           filterexpression::parsed(filter.expression).has_value());
        const QString explanation = isGroup ? tr("%1 个图层").arg(filter.layers.size())
                                    : isUsable
                                        ? filter.expression
                                        : tr("不了解此过滤器，原样保留：%1").arg(filter.expression);
        entries.push_back({filter.record, filter.parent, filter.name, explanation,
            filter.kind != Filter::Kind::Unknown, isUsable, isGroup});
    }
    m_tree->show(entries);
}

/// A nested filter restricts its parent. A group consists of the layers that it lists.
LayerTest FilterPane::testOf(const Filter& filter) const
{
    if (filter.kind == Filter::Kind::Group) {
        const std::set<LayerId> listed(filter.layers.begin(), filter.layers.end());
        return [listed](const LayerRow& row) { return listed.count(row.layer().id) > 0; };
    }
    const auto own = filterexpression::parsed(filter.expression);
    const Filter* const around = find(filter.parent);
    if (!around || !own)
        return own ? *own : LayerTest();
    return [own = *own, outer = testOf(*around)](
               const LayerRow& row) { return (!outer || outer(row)) && own(row); };
}

void FilterPane::choose()
{
    const quint64 record = m_tree->chosen();
    const Filter* const filter = find(record);
    const bool hasExpression = filter && filter->kind == Filter::Kind::Property;
    m_expression->setVisible(hasExpression);
    m_expression->setText(hasExpression ? filter->expression : QString());
    if (filter)
        emit chosen(testOf(*filter));
    else if (isPlain(record) && kPlain[record & ~kPlainRecord].passes)
        emit chosen(kPlain[record & ~kPlainRecord].passes);
    else
        emit chosen({});
}

bool FilterPane::isGroupChosen() const
{
    const Filter* const filter = find(m_tree->chosen());
    return filter && filter->kind == Filter::Kind::Group;
}

void FilterPane::showMenu(const QPoint& at)
{
    const Filter* const filter = find(m_tree->chosen());
    const quint64 record = filter ? filter->record : 0;
    QMenu menu;
    menu.addAction(tr("新建特性过滤器(&P)"), this, [this] { add(Filter::Kind::Property, {}); })
        ->setEnabled(m_editor->drawing() != nullptr);
    menu.addAction(tr("新建组过滤器(&G)"), this, [this] { add(Filter::Kind::Group, {}); })
        ->setEnabled(m_editor->drawing() != nullptr);
    menu.addSeparator();
    menu.addAction(tr("重命名(&R)"), this, [this, record] { m_tree->editName(record); })
        ->setEnabled(filter && filter->kind != Filter::Kind::Unknown);
    menu.addAction(tr("删除(&D)"), this, [this, record] { remove(record); })->setEnabled(filter);
    menu.exec(m_tree->viewport()->mapToGlobal(at));
}

/// Adds a filter inside the selected one, if that belongs to the drawing.
void FilterPane::add(Filter::Kind kind, const std::vector<LayerId>& layers)
{
    const Filter* const around = find(m_tree->chosen());
    const bool isGroup = kind == Filter::Kind::Group;
    Filter filter;
    filter.kind = kind;
    filter.parent = around && around->kind == kind ? around->record : 0;
    filter.layers = layers;
    if (!isGroup)
        filter.expression = filterexpression::ofNames(patternOf(m_typed));
    const auto isTaken = [&filter](const Filter& other) {
        return other.parent == filter.parent && other.name == filter.name;
    };
    int number = 0;
    do
        filter.name = (isGroup ? tr("组过滤器%1") : tr("特性过滤器%1")).arg(++number);
    while (std::any_of(m_filters.begin(), m_filters.end(), isTaken));
    m_editor->run(tr("新建图层过滤器"), [&filter](Drawing& drawing) -> QStringList {
        const auto added = drawing.addLayerFilter(filter);
        filter.record = added ? *added : 0;
        return added ? QStringList() : QStringList(added.error().text);
    });
    if (filter.record == 0)
        return;
    m_tree->choose(filter.record);
    m_tree->editName(filter.record);
}

void FilterPane::change(const QString& name, const Filter& filter)
{
    m_editor->run(name, [&filter](Drawing& drawing) -> QStringList {
        const auto done = drawing.changeLayerFilter(filter);
        return done ? QStringList() : QStringList(done.error().text);
    });
}

void FilterPane::rename(quint64 record, const QString& name)
{
    const Filter* const known = find(record);
    if (!known || known->name == name.trimmed())
        return;
    Filter filter = *known;
    filter.name = name.trimmed();
    change(tr("重命名图层过滤器"), filter);
    if (const Filter* const after = find(record); after && after->name != filter.name)
        fill(); // The new name was refused.
}

/// An expression that cannot be understood is not applied.
void FilterPane::setExpression()
{
    const Filter* const known = find(m_tree->chosen());
    const QString typed = m_expression->text();
    if (!known || known->kind != Filter::Kind::Property || typed == known->expression)
        return;
    if (!filterexpression::parsed(typed)) {
        m_editor->refuse(tr("不了解过滤器表达式“%1”，过滤器没有更改。").arg(typed));
        m_expression->setText(known->expression);
        return;
    }
    Filter filter = *known;
    filter.expression = typed;
    change(tr("更改图层过滤器"), filter);
}

void FilterPane::remove(quint64 record)
{
    m_editor->run(tr("删除图层过滤器"), [record](Drawing& drawing) -> QStringList {
        const auto done = drawing.removeLayerFilter(record);
        return done ? QStringList() : QStringList(done.error().text);
    });
}

void FilterPane::drop(quint64 record, const std::vector<LayerId>& layers)
{
    const Filter* const known = find(record);
    if (!known)
        return;
    Filter filter = *known;
    std::set<LayerId> listed(filter.layers.begin(), filter.layers.end());
    for (const LayerId layer : layers) {
        if (listed.insert(layer).second)
            filter.layers.push_back(layer);
    }
    change(tr("把图层加入组过滤器"), filter);
}

void FilterPane::removeFromGroup(const std::vector<LayerId>& layers)
{
    if (!isGroupChosen())
        return;
    Filter filter = *find(m_tree->chosen());
    const std::set<LayerId> gone(layers.begin(), layers.end());
    const auto isGone = [&gone](LayerId layer) { return gone.count(layer) > 0; };
    filter.layers.erase(
        std::remove_if(filter.layers.begin(), filter.layers.end(), isGone), filter.layers.end());
    change(tr("从组过滤器中移除图层"), filter);
}
