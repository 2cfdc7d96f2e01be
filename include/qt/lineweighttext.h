#pragma once

#include <QCoreApplication>

namespace vnsi {

/// The text of a lineweight. `lineWidth` is in hundredths of a millimetre or one of the codes -1
/// (ByLayer), -2 (ByBlock) and -3 (default).
inline QString lineWidthText(int lineWidth)
{
    switch (lineWidth) {
    case -3:
        return QCoreApplication::translate("cmdlayerui", "默认");
    case -1:
        return QStringLiteral("ByLayer");
    case -2:
        return QStringLiteral("ByBlock");
    default:
        return QStringLiteral("%1 mm").arg(lineWidth / 100.0, 0, 'f', 2);
    }
}

} // namespace vnsi
