#pragma once

#include "drawing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// Tagged text from lines of a group code, a blank and a value.
inline QByteArray tagged(const QByteArray& lines, const QByteArray& lineEnd = "\n")
{
    QByteArray text;
    for (const QByteArray& line : lines.split('\n')) {
        const int blank = line.indexOf(' ');
        if (blank > 0)
            text += line.left(blank).rightJustified(3) + lineEnd + line.mid(blank + 1) + lineEnd;
    }
    return text;
}

/// What the small house below is filled in with.
struct House
{
    QByteArray version = "AC1018";
    QByteArray wall = "Wall";              ///< Name of the layer most of it is on.
    QByteArray wallRecord = "70 64\n62 5"; ///< Its record's groups behind the name.
    QByteArray current = "Wall";
    QByteArray seed = "100";
    QByteArray layerCount = "3";
    QByteArray appIds; ///< Records behind `ACAD`.
    QByteArray appIdCount = "1";
    QByteArray moreLayers;
    QByteArray lineEnd = "\n";

    /// A drawing in which all kinds of places name the wall's layer.
    QByteArray bytes() const { return filledIn(lines()); }

    QByteArray filledIn(QByteArray text) const
    {
        text.replace("@version", version).replace("@wallRecord", wallRecord);
        text.replace("@wall", wall).replace("@current", current).replace("@seed", seed);
        text.replace("@layerCount", layerCount).replace("@moreLayers\n", moreLayers);
        text.replace("@appIdCount", appIdCount).replace("@appIds\n", appIds);
        return tagged(text, lineEnd);
    }

    /// The house, a tag a line.
    static QByteArray lines() { return QByteArray(kRecords).replace(" | ", "\n"); }

    static constexpr char kRecords[] = R"(0 SECTION | 2 HEADER
9 $ACADVER | 1 @version
9 $DWGCODEPAGE | 3 ANSI_936
9 $CLAYER | 8 @current
9 $HANDSEED | 5 @seed
0 ENDSEC
0 SECTION | 2 TABLES
0 TABLE | 2 LTYPE | 5 3 | 70 2
0 LTYPE | 5 30 | 2 Continuous
0 LTYPE | 5 31 | 2 Dashed
0 ENDTAB
0 TABLE | 2 LAYER | 5 2 | 102 {ACAD_XDICTIONARY | 360 A0 | 102 } | 100 AcDbSymbolTable
70 @layerCount
0 LAYER | 5 10 | 330 2 | 100 AcDbSymbolTableRecord | 100 AcDbLayerTableRecord | 2 0 | 70 0 | 62 7
6 Continuous | 370 -3 | 390 F | 347 47
0 LAYER | 5 11 | 330 2 | 100 AcDbSymbolTableRecord | 100 AcDbLayerTableRecord | 2 @wall
@wallRecord
0 LAYER | 5 12 | 102 {ACAD_XDICTIONARY | 360 B0 | 102 } | 330 2 | 100 AcDbSymbolTableRecord
100 AcDbLayerTableRecord | 2 Empty | 70 0 | 62 1 | 6 Continuous
@moreLayers
0 ENDTAB
0 TABLE | 2 APPID | 5 9 | 70 @appIdCount
0 APPID | 5 90 | 2 ACAD
@appIds
0 ENDTAB
0 ENDSEC
0 SECTION | 2 BLOCKS
0 BLOCK | 8 @wall | 2 DOOR | 10 1.5 | 20 2.5
0 LINE | 8 @wall
0 POLYLINE | 8 Implicit
0 VERTEX | 8 @wall
0 SEQEND | 8 @wall
0 ENDBLK | 8 @wall
0 BLOCK | 8 Empty | 2 *Model_Space
0 ENDBLK | 8 Empty
0 ENDSEC
0 SECTION | 2 ENTITIES
0 LINE | 8 @wall | 1001 ACAD | 1003 @wall | 1003 Gone
0 INSERT | 8 0 | 66 1 | 2 DOOR
0 ATTRIB | 8 @wall
0 SEQEND | 8 0
0 VIEWPORT | 67 1 | 8 0 | 331 11 | 331 12
0 ENDSEC
0 SECTION | 2 OBJECTS
0 DICTIONARY | 5 C
0 DICTIONARY | 5 A0 | 3 ACAD_LAYERSTATES | 360 A1
0 DICTIONARY | 5 A1 | 3 State | 360 A2
0 XRECORD | 5 A2 | 330 A1 | 100 AcDbXrecord | 91 2047 | 302 @wall | 330 11 | 90 8 | 330 12 | 90 9
8 @wall | 90 10
0 LAYER_FILTER | 5 A3 | 8 @wall
0 DICTIONARY | 5 B0 | 3 NOTE | 360 B1
0 XRECORD | 5 B1
0 ENDSEC
0 EOF
)";
};

class Fixture : public QObject
{
protected:
    QString write(const QByteArray& bytes, const QString& name = QStringLiteral("house.dxf"))
    {
        // A file of its own each time: drawings still open go on reading theirs.
        const QString path = m_folder.filePath(QString::number(++m_files) + name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the fixture");
        return path;
    }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    std::unique_ptr<drawing::Drawing> opened(const QByteArray& bytes)
    {
        auto drawing = drawing::Drawing::open(write(bytes));
        if (!drawing)
            qFatal("%s", qPrintable(drawing.error().text));
        return std::move(*drawing);
    }

    QByteArray saved(drawing::Drawing& drawing)
    {
        const QString path = m_folder.filePath(QStringLiteral("saved.dxf"));
        const auto result = drawing.save(path);
        return result ? read(path) : result.error().text.toUtf8();
    }

    /// Runs `change` on a layer's properties as a step of its own; the refusal's text, if any.
    template <class Change>
    static QString edit(drawing::Drawing& drawing, const QString& layer, Change change)
    {
        drawing.beginStep(QStringLiteral("edit"));
        const drawing::Layer* found = drawing.findLayer(layer);
        drawing::LayerProperties properties = found->properties;
        change(properties);
        const auto result = drawing.setLayerProperties(found->id, properties);
        drawing.commitStep();
        return result ? QString() : result.error().text;
    }

    static drawing::LayerId id(const drawing::Drawing& drawing, const QString& layer)
    {
        return drawing.findLayer(layer)->id;
    }

    /// Does `act` as a step of its own; whether it succeeded.
    template <class Act>
    static bool inStep(drawing::Drawing& drawing, Act act)
    {
        drawing.beginStep(QStringLiteral("step"));
        const bool succeeded = act().has_value();
        drawing.commitStep();
        return succeeded;
    }

    /// Undoes the last step and does it again: the bytes must be those before it and these.
    void checkUndo(drawing::Drawing& drawing, const QByteArray& before)
    {
        const QByteArray after = saved(drawing);
        drawing.undo();
        QCOMPARE(saved(drawing), before);
        drawing.redo();
        QCOMPARE(saved(drawing), after);
    }

    /// A row with the path of every drawing that is at hand, and of those in more folders.
    static void everyDrawing(const QStringList& more = {})
    {
        QTest::addColumn<QString>("path");
        for (const QString& folder : QStringList{SAMPLES_DIR, SHARED_DRAWINGS_DIR} + more) {
            for (const QFileInfo& file : QDir(folder).entryInfoList({"*.dxf"}))
                QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};
