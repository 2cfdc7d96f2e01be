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

/// Adds and removes records of the TABLES section and maintains handles and table counts. A missing
/// table or section is created.
class SymbolTables
{
public:
    explicit SymbolTables(DrawingFile& file) : m_file(file) {}
    /// Reads what the file has.
    void load();

    /// The style in which a section is written.
    TagStyle sectionStyle() const;
    /// The style in which the records of a table are written.
    TagStyle style(TableKind kind) const;
    /// The handle of a table; 0 when the table has none or does not exist.
    quint64 handle(TableKind kind) const;
    /// The name of a record of the file.
    QString nameOf(const ByteRange& record) const;

    /// The beginning of a new record, including its handle. Making one increases the table's count.
    struct NewRecord
    {
        quint64 handle = 0; ///< 0 in formats without handles.
        QByteArray head;
    };
    NewRecord begin(TableKind kind);
    /// Inserts a record after the others of its table.
    EditPlace insert(TableKind kind, const QByteArray& record);
    /// Decreases a table's count after a record was removed from it.
    void countOut(TableKind kind) { count(kind, -1); }
    /// Adds a record with these tags after its head. Returns its handle; 0 in formats without
    /// handles.
    quint64 add(TableKind kind, const std::vector<TextTag>& tags);
    /// Registers an XDATA application in the APPID table unless it is already registered.
    void needAppId(const QString& name);
    /// The handle of a table's extension dictionary; 0 when it has none.
    quint64 extension(TableKind kind) const;
    /// The handle of a table's extension dictionary, which is created when it is missing.
    quint64 madeExtension(TableKind kind);
    /// The handle of a table. A missing table is created, and a table without a handle gets one.
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
    QSet<QString> m_appIds; ///< The folded names of the registered applications.
};

} // namespace drawing
