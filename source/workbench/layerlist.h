#pragma once

#include <QByteArray>

namespace drawing {
class Drawing;
}

/// The layer table as a JSON document with one object per layer in file order.
QByteArray layerListJson(const drawing::Drawing& drawing);
