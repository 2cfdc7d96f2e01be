#pragma once

#include "drawing.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

/// Edits a drawing for the panel. Each action is one undo step. Nothing can be edited while a
/// command runs or the drawing is being saved.
class LayerEditor : public QObject
{
    Q_OBJECT

public:
    /// Edits the drawing and returns sentences about what was refused.
    using Act = std::function<QStringList(drawing::Drawing& drawing)>;

    using QObject::QObject;

    void setDrawing(drawing::Drawing* drawing) { m_drawing = drawing; }
    drawing::Drawing* drawing() const { return m_drawing; }
    void setBusy(bool busy) { m_isBusy = busy; }
    /// Runs an action as the step `name`. Returns false when the drawing cannot be edited at the
    /// moment.
    bool run(const QString& name, const Act& act);

    /// Reports that something was not done.
    void refuse(const QString& sentence) { emit refused({sentence}); }

signals:
    void began(); ///< An action begins, which may take long.
    void ended();
    void refused(const QStringList& sentences);
    void said(const QString& text); ///< A line for the command line.

private:
    QPointer<drawing::Drawing> m_drawing;
    bool m_isBusy = false;
};
