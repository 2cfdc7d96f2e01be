#include "indexcolorpage.h"

#include "swatches.h"
#include "swatchgrid.h"
#include "vncolortext.h"
#include "vnstrings.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kByBlock = 0;
constexpr int kByLayer = 256;
constexpr int kHues = 24;
constexpr int kSmallSide = 20;
constexpr int kLargeSide = 24;

/// One column per hue. The upper half has the saturated colours from dark to light, the lower half
/// the half-saturated ones from light to dark.
QVector<int> hueIndices()
{
    constexpr int kShades[] = {8, 6, 4, 2, 0, 1, 3, 5, 7, 9};
    QVector<int> indices;
    for (const int shade : kShades) {
        for (int hue = 1; hue <= kHues; ++hue)
            indices.append(hue * 10 + shade);
    }
    return indices;
}

QString colorText(int index)
{
    OdCmColor color;
    color.setColorIndex(static_cast<OdInt16>(index));
    return vnsi::vnutOdStringToQString(vnsi::formatColor(color, {}, {}));
}

/// The index that a text describes; -1 when it describes none.
int indexOfText(const QString& text)
{
    for (const int index : {kByLayer, kByBlock, 1, 2, 3, 4, 5, 6, 7}) {
        if (colorText(index).compare(text.trimmed(), Qt::CaseInsensitive) == 0)
            return index;
    }
    bool isNumber = false;
    const int index = text.trimmed().toInt(&isNumber);
    return isNumber && index > kByBlock && index < kByLayer ? index : -1;
}

} // namespace

IndexColorPage::IndexColorPage(QWidget* parent)
    : QWidget(parent),
      m_description(new QLabel),
      m_byLayer(new QPushButton(tr("ByLayer(&L)"))),
      m_byBlock(new QPushButton(tr("ByBlock(&K)"))),
      m_text(new QLineEdit)
{
    auto* const colorLabel = new QLabel(tr("颜色(&C):"));
    colorLabel->setBuddy(m_text);
    m_description->setObjectName(QStringLiteral("description"));
    m_byLayer->setObjectName(QStringLiteral("byLayer"));
    m_byBlock->setObjectName(QStringLiteral("byBlock"));
    m_text->setObjectName(QStringLiteral("colorText"));
    m_byLayer->setAutoDefault(false);
    m_byBlock->setAutoDefault(false);

    auto* const layout = new QGridLayout(this);
    layout->addWidget(new QLabel(tr("索引颜色:")), 0, 0, 1, 4);
    layout->addWidget(
        addGrid("hueGrid", tr("索引颜色 10 至 249"), hueIndices(), kHues, kSmallSide), 1, 0, 1, 4);
    layout->addWidget(m_description, 2, 0, 1, 4);
    layout->addWidget(
        addGrid("namedGrid", tr("标准颜色"), {1, 2, 3, 4, 5, 6, 7, 8, 9}, 9, kLargeSide), 3, 0, 1,
        2);
    layout->addWidget(m_byLayer, 3, 2);
    layout->addWidget(m_byBlock, 3, 3);
    layout->addWidget(
        addGrid("greyGrid", tr("灰度"), {250, 251, 252, 253, 254, 255}, 6, kLargeSide), 4, 0, 1, 2);
    layout->addWidget(colorLabel, 5, 0);
    layout->addWidget(m_text, 5, 1, 1, 3);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(6, 1);

    connect(m_byLayer, &QPushButton::clicked, this, [this] { choose(kByLayer); });
    connect(m_byBlock, &QPushButton::clicked, this, [this] { choose(kByBlock); });
    connect(m_text, &QLineEdit::textEdited, this, &IndexColorPage::readText);
    const QVector<QWidget*> order{m_grids[0], m_grids[1], m_byLayer, m_byBlock, m_grids[2], m_text};
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    setFocusProxy(m_text);
    describe(-1);
}

void IndexColorPage::setLogicalColorsEnabled(bool byLayer, bool byBlock)
{
    m_byLayer->setEnabled(byLayer);
    m_byBlock->setEnabled(byBlock);
}

void IndexColorPage::setIndex(int index)
{
    m_index = index;
    m_text->setText(index < 0 ? QString() : colorText(index));
    m_text->selectAll();
    markGrids();
    describe(-1);
}

SwatchGrid* IndexColorPage::addGrid(
    const char* name, const QString& title, const QVector<int>& indices, int columns, int side)
{
    auto* const grid = new SwatchGrid(indices, columns, side);
    grid->setObjectName(QLatin1String(name));
    grid->setAccessibleName(title);
    connect(grid, &SwatchGrid::chosen, this, &IndexColorPage::choose);
    connect(grid, &SwatchGrid::hovered, this, &IndexColorPage::describe);
    connect(grid, &SwatchGrid::confirmed, this, &IndexColorPage::confirmed);
    m_grids.append(grid);
    return grid;
}

void IndexColorPage::choose(int index)
{
    setIndex(index);
    emit indexChanged(index);
}

void IndexColorPage::readText(const QString& text)
{
    const int index = indexOfText(text);
    const bool isAllowed = (index != kByLayer || m_byLayer->isEnabled()) &&
                           (index != kByBlock || m_byBlock->isEnabled());
    m_index = isAllowed ? index : -1;
    markGrids();
    describe(-1);
    emit indexChanged(m_index);
}

void IndexColorPage::describe(int index)
{
    const int shown = index >= 0 ? index : m_index;
    if (shown <= kByBlock || shown >= kByLayer) {
        m_description->setText(tr("索引: -    红,绿,蓝: -"));
        return;
    }
    const QColor color = indexColor(shown);
    m_description->setText(tr("索引: %1    红,绿,蓝: %2,%3,%4")
                               .arg(shown)
                               .arg(color.red())
                               .arg(color.green())
                               .arg(color.blue()));
}

void IndexColorPage::markGrids()
{
    for (SwatchGrid* grid : m_grids)
        grid->setCurrent(m_index);
}

} // namespace host
