#pragma once

#include <QButtonGroup>

namespace vnsi {

/// The signal `buttonClicked(int)`, which the dialogs use for their button groups. The newest
/// headers of Qt 5 prefer the name `idClicked`; the older name exists in all of them, and other
/// programs on this interface rely on it.
inline auto buttonClickedWithId()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QOverload<int>::of(&QButtonGroup::buttonClicked);
    QT_WARNING_POP
}

} // namespace vnsi
