#pragma once

#include "drawing.h"

#include <QPointF>
#include <QStatusBar>

class QLabel;
class QMenu;
class QProgressBar;
class QToolButton;

/// The status bar: the switch between model space and the layouts, current layer, number of layers,
/// cursor position, and the progress of long work with its cancel button.
class StatusFields : public QStatusBar
{
    Q_OBJECT

public:
    static constexpr int kModelSpace = -1;

    explicit StatusFields(QWidget* parent = nullptr);

    /// A button for a switch of the window, with a short title of its own.
    void addSwitch(QAction* action, const QString& title);
    void showLayers(const drawing::Drawing* drawing); ///< Null: no drawing is open.
    void showViewport(bool isInside);                 ///< Whether the user is at work in one.
    void showSelection(int count);                    ///< Of entities; 0 shows nothing.
    void showCursor(const QPointF& point);
    void showWork(const QString& what);
    void showWait(const QString& what); ///< For work that cannot be stopped, until `hideWork`.
    void showProgress(int percent);
    void hideWork();

signals:
    void cancelClicked();
    void spaceChosen(int layout); ///< Index of the layout wanted; `kModelSpace` for model space.

private:
    QToolButton* makeSpaceSwitch();
    void showSpaces(const drawing::Drawing* drawing);
    void addSpace(const QString& title, int space, int shown);
    QLabel* addField(const QString& name, const QString& widest);

    QToolButton* m_space = nullptr;
    QMenu* m_spaces = nullptr;
    int m_otherSpace = kModelSpace; ///< What a click on the switch goes to.
    QLabel* m_viewport = nullptr;
    QLabel* m_current = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_selected = nullptr;
    QLabel* m_cursor = nullptr;
    QProgressBar* m_bar = nullptr;
    QToolButton* m_cancel = nullptr;
};
