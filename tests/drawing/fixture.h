#pragma once

#include "drawings.h"
#include "files.h"
#include "plan.h"
#include "steps.h"

#include <QTemporaryDir>

/// The variable parts of the small house below. All kinds of places in it name the wall's layer.
struct House
{
    QByteArray version = "AC1018";
    QByteArray wall = "Wall";              ///< The name of the layer that most entities are on.
    QByteArray wallRecord = "70 64\n62 5"; ///< The groups of its record after the name.
    QByteArray current = "Wall";
    QByteArray seed = "100";
    QByteArray layerCount; ///< Empty to write the true number.
    QByteArray appIds;     ///< Records after `ACAD`.
    QByteArray moreLayers;
    QByteArray variables; ///< Additional header variables.
    QByteArray objects = kObjects;
    QByteArray rootObjects; ///< Entries of the root dictionary and the objects after it.
    QByteArray lineEnd = "\n";

    /// A house with named plot styles; the wall's one has the handle E1.
    static House withNamedStyles()
    {
        House house;
        house.wallRecord = "62 5 | 390 E1";
        house.variables = "9 $PSTYLEMODE | 290      0\n";
        house.rootObjects = "3 ACAD_PLOTSTYLENAME | 350 E0\n0 ACDBDICTIONARYWDFLT | 5 E0\n"
                            "3 Normal | 350 F | 3 \\U+534A\\U+8272 | 350 E1\n";
        return house;
    }

    QByteArray bytes() const { return filledIn(plan().lines()); }

    QByteArray filledIn(QByteArray text) const
    {
        text.replace("@wallRecord", wallRecord).replace("@wall", wall);
        return tagged(text, lineEnd);
    }

    Plan plan() const
    {
        Plan plan;
        plan.version = version;
        plan.current = current;
        plan.seed = seed;
        plan.variables = variables;
        plan.layers = kLayers + moreLayers;
        plan.layerCount = layerCount;
        plan.layerTable = "102 {ACAD_XDICTIONARY | 360 A0 | 102 } | 100 AcDbSymbolTable\n";
        plan.tables = "0 TABLE | 2 APPID | 5 9 | 70 " + QByteArray(appIds.isEmpty() ? "1" : "2") +
                      "\n0 APPID | 5 90 | 2 ACAD\n" + appIds + "0 ENDTAB\n";
        plan.blocks = kBlocks;
        plan.entities = kEntities;
        plan.objects = rootObjects + objects;
        return plan;
    }

    static constexpr char kLayers[] =
        R"(0 LAYER | 5 10 | 330 2 | 100 AcDbSymbolTableRecord | 100 AcDbLayerTableRecord | 2 0 | 70 0
62 7 | 6 Continuous | 370 -3 | 390 F | 347 47
0 LAYER | 5 11 | 330 2 | 100 AcDbSymbolTableRecord | 100 AcDbLayerTableRecord | 2 @wall
@wallRecord
0 LAYER | 5 12 | 102 {ACAD_XDICTIONARY | 360 B0 | 102 } | 330 2 | 100 AcDbSymbolTableRecord
100 AcDbLayerTableRecord | 2 Empty | 70 0 | 62 1 | 6 Continuous
)";
    static constexpr char kBlocks[] = R"(0 BLOCK | 8 @wall | 2 DOOR | 10 1.5 | 20 2.5
0 LINE | 8 @wall
0 POLYLINE | 8 Implicit
0 VERTEX | 8 @wall
0 SEQEND | 8 @wall
0 ENDBLK | 8 @wall
0 BLOCK | 8 Empty | 2 *Model_Space
0 ENDBLK | 8 Empty
)";
    static constexpr char kEntities[] = R"(0 LINE | 8 @wall | 1001 ACAD | 1003 @wall | 1003 Gone
0 INSERT | 8 0 | 66 1 | 2 DOOR
0 ATTRIB | 8 @wall
0 SEQEND | 8 0
0 VIEWPORT | 67 1 | 8 0 | 331 11 | 331 12
)";
    static constexpr char kObjects[] = R"(0 DICTIONARY | 5 A0 | 3 ACAD_LAYERSTATES | 360 A1
0 DICTIONARY | 5 A1 | 3 State | 360 A2
0 XRECORD | 5 A2 | 330 A1 | 100 AcDbXrecord | 91 2047 | 302 @wall | 330 11 | 90 8 | 330 12 | 90 9
8 @wall | 90 10
0 LAYER_FILTER | 5 A3 | 8 @wall
0 DICTIONARY | 5 B0 | 3 NOTE | 360 B1
0 XRECORD | 5 B1
)";
};

Q_DECLARE_METATYPE(House)

class Fixture : public QObject
{
protected:
    QString write(const QByteArray& bytes, const QString& name = "house.dxf")
    {
        // Each drawing gets a file of its own, because open drawings still read theirs.
        return writtenFile(inFolder(QString::number(++m_files) + name), bytes);
    }
    QString inFolder(const QString& name) const { return m_folder.filePath(name); }

    std::unique_ptr<drawing::Drawing> opened(const QByteArray& bytes)
    {
        auto drawing = drawing::Drawing::open(write(bytes));
        if (!drawing)
            qFatal("%s", qPrintable(drawing.error().text));
        return std::move(*drawing);
    }

    QByteArray saved(drawing::Drawing& drawing)
    {
        const auto result = drawing.save(inFolder("saved.dxf"));
        return result ? contentOf(inFolder("saved.dxf")) : result.error().text.toUtf8();
    }

    static QStringList restore(drawing::Drawing& drawing, const drawing::LayerState& state,
        const drawing::LayerStateRestore& how)
    {
        return inStep(drawing, [&] { return restoreLayerState(drawing, state, how); });
    }

    static drawing::LayerId id(const drawing::Drawing& drawing, const QString& layer)
    {
        return drawing.findLayer(layer)->id;
    }

    /// Undoes the last step and redoes it. The saved bytes must be those before the step and the
    /// present ones.
    void checkUndo(drawing::Drawing& drawing, const QByteArray& before)
    {
        const QByteArray after = saved(drawing);
        drawing.undo();
        QCOMPARE(saved(drawing), before);
        drawing.redo();
        QCOMPARE(saved(drawing), after);
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};
