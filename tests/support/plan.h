#pragma once

#include <QByteArray>
#include <QMetaType>

/// Converts lines of a group code, a blank and a value to tags; " | " separates tags like a line
/// end.
inline QByteArray tagged(QByteArray lines, const QByteArray& lineEnd = "\n")
{
    QByteArray text;
    for (const QByteArray& line : lines.replace(" | ", "\n").split('\n')) {
        const int blank = line.indexOf(' ');
        if (blank > 0)
            text += line.left(blank).rightJustified(3) + lineEnd + line.mid(blank + 1) + lineEnd;
    }
    return text;
}

/// A drawing in parts. Each part consists of lines in the form that `tagged` reads.
struct Plan
{
    QByteArray version = "AC1018";
    QByteArray current = "0";
    QByteArray seed = "100";
    QByteArray variables; ///< Additional header variables.
    QByteArray linetypes = "0 LTYPE | 5 30 | 2 Continuous\n0 LTYPE | 5 31 | 2 Dashed\n";
    QByteArray layers;
    QByteArray layerCount; ///< Empty to write the true number.
    QByteArray layerTable; ///< Additional tags of the table's head.
    QByteArray tables;     ///< Tables after the layer table.
    QByteArray blocks;
    QByteArray entities;
    QByteArray objects; ///< Objects after the root dictionary's handle.

    QByteArray lines() const
    {
        const auto countIn = [](const QByteArray& records, const char* kind) {
            return "70 " + QByteArray::number(records.count(kind)) + '\n';
        };
        return "0 SECTION | 2 HEADER | 9 $ACADVER | 1 " + version +
               " | 9 $DWGCODEPAGE | 3 ANSI_936\n" + variables + "9 $CLAYER | 8 " + current +
               " | 9 $HANDSEED | 5 " + seed + " | 0 ENDSEC\n0 SECTION | 2 TABLES\n" +
               "0 TABLE | 2 LTYPE | 5 3\n" + countIn(linetypes, "0 LTYPE") + linetypes +
               "0 ENDTAB\n0 TABLE | 2 LAYER | 5 2\n" + layerTable +
               (layerCount.isEmpty() ? countIn(layers, "0 LAYER") : "70 " + layerCount + '\n') +
               layers + "0 ENDTAB\n" + tables + "0 ENDSEC\n0 SECTION | 2 BLOCKS\n" + blocks +
               "0 ENDSEC\n0 SECTION | 2 ENTITIES\n" + entities +
               "0 ENDSEC\n0 SECTION | 2 OBJECTS\n0 DICTIONARY | 5 C\n" + objects +
               "0 ENDSEC\n0 EOF\n";
    }
    QByteArray bytes() const { return tagged(lines()); }
};

inline QByteArray layerRecord(const QByteArray& handle, const QByteArray& name,
    const QByteArray& color, const QByteArray& flags = "0")
{
    return "0 LAYER\n5 " + handle + "\n2 " + name + "\n70 " + flags + "\n62 " + color +
           "\n6 Continuous\n";
}

/// A drawing with the layers 0, Wall, Keep and one layer of an external reference.
struct Yard : Plan
{
    Yard(const QByteArray& itsEntities = {}, const QByteArray& itsObjects = {},
        const QByteArray& itsBlocks = {})
    {
        layers = zero() + wall() + keep() + reference();
        entities = itsEntities;
        objects = itsObjects;
        blocks = itsBlocks;
    }

    static QByteArray zero() { return layerRecord("10", "0", "7"); }
    static QByteArray wall() { return layerRecord("11", "Wall", "1"); }
    static QByteArray keep() { return layerRecord("12", "Keep", "2"); }
    static QByteArray reference() { return layerRecord("13", "plan|X", "2", "16"); }

    /// Replaces the records of Wall and Keep.
    void setLayers(const QByteArray& records) { layers = zero() + records + reference(); }
};

Q_DECLARE_METATYPE(Yard)

/// A drawing with two layouts: `A1`, whose entities are stored with those of model space, and, with
/// an earlier tab, `A0`, whose entities are in its block. Each contains one line; the layout's line
/// is longer. `A1` has the viewports 51 and 52 (52 was active last) and the sheet's own viewport.
/// `A0` has viewport 42; only its sheet's own viewport is active.
inline QByteArray sheetsDrawing()
{
    Plan plan;
    plan.version = "AC1032";
    plan.variables = "9 $TILEMODE | 70 1\n";
    plan.layers = layerRecord("10", "0", "7") + layerRecord("11", "Wall", "5") +
                  layerRecord("12", "Door", "1");
    plan.tables = R"(0 TABLE | 2 BLOCK_RECORD | 5 1 | 70 3
0 BLOCK_RECORD | 5 20 | 2 *Model_Space
0 BLOCK_RECORD | 5 21 | 2 *Paper_Space
0 BLOCK_RECORD | 5 22 | 2 *Paper_Space0
0 ENDTAB
)";
    plan.blocks = R"(0 BLOCK | 8 0 | 2 *Model_Space
0 ENDBLK | 8 0
0 BLOCK | 8 0 | 2 *Paper_Space
0 ENDBLK | 8 0
0 BLOCK | 8 0 | 2 *Paper_Space0
0 LINE | 8 Wall | 10 0 | 20 0 | 11 300 | 21 0
0 VIEWPORT | 5 41 | 100 AcDbEntity | 8 0 | 100 AcDbViewport | 69 1
0 VIEWPORT | 5 42 | 100 AcDbEntity | 8 0 | 100 AcDbViewport | 69 2 | 72 100 | 331 12 | 331 77
90 32864
0 ENDBLK | 8 0
)";
    plan.entities = R"(0 LINE | 8 Wall | 10 0 | 20 0 | 11 100 | 21 0
0 LINE | 67 1 | 8 Wall | 10 0 | 20 0 | 11 200 | 21 0
0 VIEWPORT | 5 50 | 100 AcDbEntity | 67 1 | 8 0 | 100 AcDbViewport | 10 5 | 20 4 | 41 8 | 69 4
12 5 | 22 4 | 45 8
0 VIEWPORT | 5 51 | 100 AcDbEntity | 67 1 | 8 0 | 100 AcDbViewport | 69 2 | 90 32864
0 VIEWPORT | 5 52 | 100 AcDbEntity | 67 1 | 8 0 | 100 AcDbViewport | 69 3 | 72 100 | 90 32864
)";
    const QByteArray layout = "100 AcDbPlotSettings | 1 no name | 100 AcDbLayout | 1 ";
    plan.objects = "0 LAYOUT | 5 60 | " + layout + "Model | 71 0 | 330 20\n0 LAYOUT | 5 61 | " +
                   layout + "A1 | 71 2 | 330 21 | 331 52\n0 LAYOUT | 5 62 | " + layout +
                   "A0 | 71 1 | 330 22 | 331 41\n";
    return plan.bytes();
}
