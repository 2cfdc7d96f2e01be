#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QDialog;
class QMenu;
class QWidget;

/// Everything that a user could do next in a visible window: press a button, click or double-click
/// a cell or a header, choose, type, open a context menu, press a key. Valid until the window
/// changes.
std::vector<std::function<void()>> actsIn(QWidget& window);

/// Handles menus and modal windows while it exists, so that nothing waits for a user. It chooses an
/// entry of a menu; in a window it does a few actions and then closes it.
class PopupAnswerer : public QObject
{
public:
    /// Returns a number from 0 to `count` - 1; `count` is at least 1.
    using Choice = std::function<int(int count)>;

    explicit PopupAnswerer(Choice choose);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void answer(QMenu& menu) const;
    void answer(QDialog& dialog);

    Choice m_choose;
    int m_depth = 0;
};
