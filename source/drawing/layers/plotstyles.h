#pragma once

#include "file/drawingfile.h"

#include <QHash>
#include <QStringList>

namespace drawing {

/// The names of the layers' plot styles. They are either names of their own or follow from the
/// layers' colours.
class PlotStyles
{
public:
    explicit PlotStyles(DrawingFile& file) : m_file(file) {}
    void load();

    bool areByColor() const { return m_areByColor; }
    /// The plot style name of a layer with this colour index, 1..255, and this plot style handle.
    QString name(int colorIndex, quint64 handle) const;
    /// The handle of the style of this name, ignoring letter case. Returns `otherwise` when there
    /// is none and when the drawing has no named plot styles.
    quint64 handle(const QString& name, quint64 otherwise) const;

    /// Adds named plot styles to a new drawing whose plot styles follow from colours. Existing
    /// names are kept. This does not belong to a step.
    void make(const QStringList& names);

private:
    quint64 dictionary() const;

    DrawingFile& m_file;
    /// The keys are handles. Unused when plot styles follow from colours.
    QHash<quint64, QString> m_names;
    bool m_areByColor = true;
};

} // namespace drawing
