#pragma once

#include "drawing.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

/// Edits a drawing for the panel: each act is one step of undo. Nothing is edited while a command
/// or a file's way to the disk has the drawing to itself.
class LayerEditor : public QObject
{
    Q_OBJECT

public:
    /// Edits the drawing; a sentence for what was refused.
    using Act = std::function<QStringList(drawing::Drawing& drawing)>;

    using QObject::QObject;

    void setDrawing(drawing::Drawing* drawing) { m_drawing = drawing; }
    drawing::Drawing* drawing() const { return m_drawing; }
    void setBusy(bool busy) { m_isBusy = busy; }
    /// Runs an act as the step `name`. False when the drawing may not be edited now.
    bool run(const QString& name, const Act& act);

    /// Says that something was not done.
    void refuse(const QString& sentence) { emit refused({sentence}); }

signals:
    void began(); ///< An act, which may take long.
    void ended();
    void refused(const QStringList& sentences);
    void said(const QString& text); ///< For the command line's echo.

private:
    QPointer<drawing::Drawing> m_drawing;
    bool m_isBusy = false;
};
