#pragma once

#include "editjournal.h"
#include "fileindex.h"
#include "tagstyle.h"
#include "texttag.h"

#include <QSet>
#include <QString>

#include <vector>

namespace drawing {

class DrawingFile;

/// Adds and removes records of the TABLES section, and what goes with them: handles and the tables'
/// counts. A table or section that is missing is made.
class SymbolTables
{
public:
    explicit SymbolTables(DrawingFile& file) : m_file(file) {}
    /// Looks at what the file has.
    void load();

    /// How a section is written.
    TagStyle sectionStyle() const;
    /// How the records of a table are written.
    TagStyle style(TableKind kind) const;
    /// 0 for a table without a handle, and for none.
    quint64 handle(TableKind kind) const;
    /// The name of a record in the file.
    QString nameOf(const ByteRange& record) const;

    /// What a new record begins with, its handle among it; it is counted in.
    struct NewRecord
    {
        quint64 handle = 0; ///< 0 in formats without.
        QByteArray head;
    };
    NewRecord begin(TableKind kind);
    /// Puts a record behind those of its table.
    EditPlace insert(TableKind kind, const QByteArray& record);
    /// Counts a record out that was taken out of its table.
    void countOut(TableKind kind) { count(kind, -1); }
    /// Adds a record with these tags behind its head. Returns its handle; 0 in formats without.
    quint64 add(TableKind kind, const std::vector<TextTag>& tags);
    /// Lists an XDATA application, where it is not listed yet.
    void needAppId(const QString& name);
    /// Handle of a table's extension dictionary; 0 without one.
    quint64 extension(TableKind kind) const;
    /// The same; a missing one is made.
    quint64 madeExtension(TableKind kind);
    /// Handle of a table; one that is missing is made, and one without a handle gets one.
    quint64 madeHandle(TableKind kind);

private:
    qint64 place(TableKind kind) const;
    qint64 behindName(TableKind kind) const;
    void count(TableKind kind, int added);
    void makeFrame(TableKind kind);
    struct ExtensionPlace;
    ExtensionPlace extensionPlace(TableKind kind) const;
    void linkExtension(TableKind kind, quint64 dictionary);

    DrawingFile& m_file;
    QSet<QString> m_appIds; ///< Folded names.
};

} // namespace drawing
