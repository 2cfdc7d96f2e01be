#pragma once

#include "CmColor.h"
#include "vnsidef.h"

#include <QColor>
#include <QIcon>

namespace host {

VNSI_EXPORT QColor indexColor(int index);
QColor toQColor(const OdCmEntityColor& color);
/// A square icon in this colour with a thin border.
QIcon swatchIcon(const QColor& color);

} // namespace host
