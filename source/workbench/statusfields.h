#pragma once

#include "drawing.h"

#include <QPointF>
#include <QStatusBar>

class QLabel;
class QMenu;
class QProgressBar;
class QToolButton;

/// The status bar: the switch between model space and layouts, the current layer, the number of
/// layers, the cursor's position, and the progress of long work with a cancel button.
class StatusFields : public QStatusBar
{
    Q_OBJECT

public:
    static constexpr int kModelSpace = -1;

    explicit StatusFields(QWidget* parent = nullptr);

    /// Adds a button for an action of the window, with a short title.
    void addSwitch(QAction* action, const QString& title);
    void showLayers(const drawing::Drawing* drawing); ///< Null when no drawing is open.
    void showViewport(bool isInside);                 ///< Whether the user works inside a viewport.
    void showSelection(int count); ///< The number of selected entities; 0 shows nothing.
    void showCursor(const QPointF& point);
    void showWork(const QString& what);
    /// For work that cannot be stopped; shown until `hideWork`.
    void showWait(const QString& what);
    void showProgress(int percent);
    void hideWork();

signals:
    void cancelClicked();
    void spaceChosen(int layout); ///< The index of the requested layout, or `kModelSpace`.

private:
    QToolButton* makeSpaceSwitch();
    void showSpaces(const drawing::Drawing* drawing);
    void showWorkMessage(const QString& what);
    void addSpace(const QString& title, int space, int shown);
    QLabel* addField(const QString& name, const QString& widest);

    QToolButton* m_space = nullptr;
    QMenu* m_spaces = nullptr;
    QString m_workMessage;
    int m_otherSpace = kModelSpace; ///< The space that a click on the switch shows.
    QLabel* m_viewport = nullptr;
    QLabel* m_current = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_selected = nullptr;
    QLabel* m_cursor = nullptr;
    QProgressBar* m_bar = nullptr;
    QToolButton* m_cancel = nullptr;
};
