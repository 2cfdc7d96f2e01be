#pragma once

#include "symboltables.h"

#include <QStringList>

namespace drawing {

/// The linetypes of a drawing.
class LinetypeTable
{
public:
    explicit LinetypeTable(DrawingData& data) : m_data(data) {}

    QStringList names() const;
    /// By name, without regard to letter case; null when there is none.
    LinetypePointer find(const QString& name) const;
    /// Adds a linetype and the styles it needs; one of the same name stays as it is.
    void add(const LinetypeDefinition& definition);

private:
    const StyleIndex& styles() const;
    LinetypePointer read(const LinetypeEntry& entry) const;
    quint64 styleHandle(const LinetypeStyle& style);

    DrawingData& m_data;
};

} // namespace drawing
