#pragma once

#include "file/drawingfile.h"

#include <QHash>
#include <QStringList>

namespace drawing {

/// What the plot styles of layers are called: they have names of their own, or follow from the
/// layers' colours.
class PlotStyles
{
public:
    explicit PlotStyles(DrawingFile& file) : m_file(file) {}
    void load();

    bool areByColor() const { return m_areByColor; }
    /// Of a layer with this colour index, 1..255, and plot style handle.
    QString name(int colorIndex, quint64 handle) const;
    /// The handle of a style by name, without regard to letter case; `otherwise` where there is
    /// none of that name, or none has a name.
    quint64 handle(const QString& name, quint64 otherwise) const;

    /// Gives a new drawing, in which styles follow from colours, styles with these names, besides
    /// those it has already. No part of any step.
    void make(const QStringList& names);

private:
    quint64 dictionary() const;

    DrawingFile& m_file;
    QHash<quint64, QString> m_names; ///< By handle; unused where styles go by colour.
    bool m_areByColor = true;
};

} // namespace drawing
