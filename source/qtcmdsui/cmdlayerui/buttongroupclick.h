#pragma once

#include <QButtonGroup>

namespace vnsi {

/// The signal `buttonClicked(int)`, by which the dialogs' groups of buttons are connected. Qt's
/// newest headers of this line call it `idClicked`; the older name is what other programs on this
/// interface listen to, and it is there in all of them.
inline auto buttonClickedWithId()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QOverload<int>::of(&QButtonGroup::buttonClicked);
    QT_WARNING_POP
}

} // namespace vnsi
