#pragma once

#include <QTableWidget>

namespace vnsi {

/// The table of layers: a press below the last row leaves the selection alone.
class VnQtLayerQTableWgt : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace vnsi
