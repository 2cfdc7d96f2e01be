#pragma once

#include "file/drawingfile.h"
#include "leftout.h"
#include "linetypedefinition.h"

#include <QHash>
#include <QStringList>

#include <mutex>
#include <optional>

namespace drawing {

/// The linetypes of a drawing.
class LinetypeTable
{
public:
    /// What a step changes besides the bytes.
    struct State
    {
        QHash<QString, LinetypePointer> linetypes; ///< Added, by folded name.
        QHash<QString, quint64> styles;            ///< Added to the STYLE table, see `styleKey`.

        bool operator==(const State& other) const
        {
            return linetypes == other.linetypes && styles == other.styles;
        }
    };

    LinetypeTable(DrawingFile& file, LeftOut& leftOut) : m_file(file), m_leftOut(leftOut) {}
    void load();

    QStringList names() const;
    /// As the drawing spells it; null when it has none of that name, whatever its letter case.
    QString spelled(const QString& name) const;
    /// By name, without regard to letter case; null when there is none.
    LinetypePointer find(const QString& name) const;
    /// The name of a linetype of the file; null when there is none with this handle.
    QString name(quint64 handle) const { return m_byHandle.value(handle); }
    /// 0 for a linetype that is not in the file.
    quint64 handle(const QString& name) const;
    /// Adds a linetype and the styles it needs; one of the same name stays as it is.
    void add(const LinetypeDefinition& definition);

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    /// A linetype of the file.
    struct Entry
    {
        QString name; ///< As the file spells it.
        ByteRange record;
        quint64 handle = 0;
    };
    /// The STYLE records of the file.
    struct StyleIndex
    {
        QHash<quint64, ByteRange> records; ///< By handle.
        QHash<QString, quint64> handles;   ///< By folded name; shape files by their font's.
    };

    const StyleIndex& styles() const;
    LinetypeStyle readStyle(const ByteRange& record) const;
    LinetypePointer read(const Entry& entry) const;
    quint64 styleHandle(const LinetypeStyle& style);

    DrawingFile& m_file;
    LeftOut& m_leftOut;
    QStringList m_names;             ///< Of the file, in its order.
    QHash<QString, Entry> m_entries; ///< By folded name.
    QHash<quint64, QString> m_byHandle;
    mutable std::mutex m_indexing;              ///< Several threads may be the first to ask.
    mutable std::optional<StyleIndex> m_styles; ///< Made when a linetype asks for it.
    State m_state;
};

} // namespace drawing
