#include "swatchgrid.h"

#include "swatches.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace host {

namespace {
constexpr int kGap = 2;
constexpr int kMargin = 3;
} // namespace

SwatchGrid::SwatchGrid(QVector<int> indices, int columns, int side, QWidget* parent)
    : QWidget(parent),
      m_indices(std::move(indices)),
      m_columns(columns),
      m_side(side)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SwatchGrid::setCurrent(int index)
{
    const int shown = m_indices.contains(index) ? index : -1;
    if (shown == m_current)
        return;
    m_current = shown;
    update();
}

QSize SwatchGrid::sizeHint() const
{
    const int rows = (m_indices.size() + m_columns - 1) / m_columns;
    const int step = m_side + kGap;
    return {m_columns * step - kGap + 2 * kMargin, rows * step - kGap + 2 * kMargin};
}

void SwatchGrid::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < m_indices.size(); ++i) {
        painter.fillRect(cell(i), indexColor(m_indices[i]));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(cell(i).adjusted(0, 0, -1, -1));
    }
    const int position = m_indices.indexOf(m_current);
    if (position < 0)
        return;
    painter.setPen(
        QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), 2));
    painter.drawRect(cell(position).adjusted(-1, -1, 1, 1));
}

void SwatchGrid::mousePressEvent(QMouseEvent* event)
{
    const int index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && index >= 0)
        choose(m_indices.indexOf(index));
}

void SwatchGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && index >= 0)
        emit confirmed(index);
}

void SwatchGrid::mouseMoveEvent(QMouseEvent* event)
{
    emit hovered(indexAt(event->pos()));
}

void SwatchGrid::leaveEvent(QEvent*)
{
    emit hovered(-1);
}

void SwatchGrid::keyPressEvent(QKeyEvent* event)
{
    const int position = m_indices.indexOf(m_current);
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(position - 1);
    case Qt::Key_Right:
        return choose(position + 1);
    case Qt::Key_Up:
        return choose(position - m_columns);
    case Qt::Key_Down:
        return choose(position + m_columns);
    case Qt::Key_Home:
        return choose(0);
    case Qt::Key_End:
        return choose(m_indices.size() - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SwatchGrid::focusInEvent(QFocusEvent* event)
{
    const bool byKey =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey && m_current >= 0)
        emit hovered(m_current);
    QWidget::focusInEvent(event);
}

int SwatchGrid::indexAt(const QPoint& position) const
{
    const int column = (position.x() - kMargin) / (m_side + kGap);
    const int row = (position.y() - kMargin) / (m_side + kGap);
    if (position.x() < kMargin || position.y() < kMargin || column >= m_columns)
        return -1;
    return m_indices.value(row * m_columns + column, -1);
}

QRect SwatchGrid::cell(int position) const
{
    const int step = m_side + kGap;
    return {kMargin + position % m_columns * step, kMargin + position / m_columns * step, m_side,
        m_side};
}

void SwatchGrid::choose(int position)
{
    // Without a chosen colour, the first arrow key selects the first one.
    const int target = m_current < 0 && position < 0 ? 0 : position;
    if (target < 0 || target >= m_indices.size())
        return;
    setCurrent(m_indices[target]);
    emit chosen(m_current);
}

} // namespace host
