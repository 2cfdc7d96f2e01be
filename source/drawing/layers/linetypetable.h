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
        /// The added linetypes; the keys are folded names.
        QHash<QString, LinetypePointer> linetypes;
        /// The added records of the STYLE table; see `styleKey` for the keys.
        QHash<QString, quint64> styles;

        bool operator==(const State& other) const
        {
            return linetypes == other.linetypes && styles == other.styles;
        }
    };

    LinetypeTable(DrawingFile& file, LeftOut& leftOut) : m_file(file), m_leftOut(leftOut) {}
    void load();

    QStringList names() const;
    /// The linetype's name as the drawing spells it; null when no name matches, ignoring letter
    /// case.
    QString spelled(const QString& name) const;
    /// The linetype of this name, ignoring letter case; null when there is none.
    LinetypePointer find(const QString& name) const;
    /// The name of a linetype of the file; null when none has this handle.
    QString name(quint64 handle) const { return m_byHandle.value(handle); }
    /// The handle of a linetype; 0 when the file does not have it.
    quint64 handle(const QString& name) const;
    /// Adds a linetype and the styles that it needs. A linetype of the same name stays as it is.
    void add(const LinetypeDefinition& definition);

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    /// A linetype of the file.
    struct Entry
    {
        QString name; ///< The file's spelling of the name.
        ByteRange record;
        quint64 handle = 0;
    };
    /// The STYLE records of the file.
    struct StyleIndex
    {
        QHash<quint64, ByteRange> records; ///< The keys are handles.
        /// The keys are folded names; for shape files the names of their fonts.
        QHash<QString, quint64> handles;
    };

    const StyleIndex& styles() const;
    LinetypeStyle readStyle(const ByteRange& record) const;
    LinetypePointer read(const Entry& entry) const;
    quint64 styleHandle(const LinetypeStyle& style);

    DrawingFile& m_file;
    LeftOut& m_leftOut;
    QStringList m_names;             ///< The file's linetypes in file order.
    QHash<QString, Entry> m_entries; ///< The keys are folded names.
    QHash<quint64, QString> m_byHandle;
    /// Protects `m_styles`, which several threads may request first.
    mutable std::mutex m_indexing;
    mutable std::optional<StyleIndex> m_styles; ///< Built when a linetype needs it.
    State m_state;
};

} // namespace drawing
