#pragma once

#include <QByteArray>

namespace drawing {
class Drawing;
}

/// The layer table as a JSON document, one object a layer in the order of the file.
QByteArray layerListJson(const drawing::Drawing& drawing);
