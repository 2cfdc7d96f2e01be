#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QDialog;
class QMenu;
class QWidget;

/// Everything a user could do next in a window that is shown: press a button, click or double click
/// a cell or a header, choose, type, ask for a context menu, press a key. Good until the window
/// changes.
std::vector<std::function<void()>> actsIn(QWidget& window);

/// While it lives, answers the menus and modal windows that come up, so that nothing waits for a
/// user. A menu gets one of its entries; in a window a few acts are done before it is closed.
class PopupAnswerer : public QObject
{
public:
    /// A number from 0 to below `count`, which is at least 1.
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
