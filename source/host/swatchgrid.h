#pragma once

#include <QVector>
#include <QWidget>

namespace host {

/// Index colours in rows to choose from, with the mouse or the arrow keys.
class SwatchGrid : public QWidget
{
    Q_OBJECT

public:
    /// `indices` row by row, `columns` to a row, each drawn `side` pixels wide and high.
    SwatchGrid(QVector<int> indices, int columns, int side, QWidget* parent = nullptr);

    /// The index chosen; -1 for none.
    int current() const { return m_current; }
    /// Marks an index; one that is not in the grid takes the mark away.
    void setCurrent(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void chosen(int index);
    /// A double click or Enter on an index.
    void confirmed(int index);
    /// The index under the mouse; -1 when it left.
    void hovered(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int indexAt(const QPoint& position) const;
    QRect cell(int position) const;
    void choose(int position);

    QVector<int> m_indices;
    int m_columns;
    int m_side;
    int m_current = -1;
};

} // namespace host
