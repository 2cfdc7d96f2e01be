#include "vnqtlayerqtablewgt.h"

#include <QMouseEvent>

namespace vnsi {

void VnQtLayerQTableWgt::mousePressEvent(QMouseEvent* event)
{
    if (itemAt(event->localPos().toPoint()))
        QTableWidget::mousePressEvent(event);
}

} // namespace vnsi
