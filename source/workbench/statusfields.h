#pragma once

#include "drawing.h"

#include <QPointF>
#include <QStatusBar>

class QLabel;
class QProgressBar;
class QToolButton;

/// The status bar: the switch between model space and layout, current layer, number of layers, cursor position, and the progress of long work
/// with its cancel button.
class StatusFields : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusFields(QWidget* parent = nullptr);

    void showLayers(const drawing::Drawing* drawing); ///< Null: no drawing is open.
    void showSelection(int count);                    ///< Of entities; 0 shows nothing.
    void showCursor(const QPointF& point);
    void showWork(const QString& what);
    void showProgress(int percent);
    void hideWork();

signals:
    void cancelClicked();
    void spaceClicked(); ///< The other of model space and layout is wanted.

private:
    QLabel* addField(const QString& name, const QString& widest);

    QToolButton* m_space = nullptr;
    QLabel* m_current = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_selected = nullptr;
    QLabel* m_cursor = nullptr;
    QProgressBar* m_bar = nullptr;
    QToolButton* m_cancel = nullptr;
};
