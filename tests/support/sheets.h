#pragma once

#include <QByteArray>

/// A drawing of two layouts: `A1`, whose entities stand beside those of model space, and before it
/// by its tab `A0`, whose entities stand in their block. A line each; the layout's line is longer.
/// `A1` has the viewports 51 and 52, of which 52 was active last, and the sheet's own; `A0` has 42,
/// and no active one but the sheet's own.
inline QByteArray sheetsDrawing()
{
    const QByteArray lines = R"(0 SECTION
2 HEADER
9 $ACADVER
1 AC1032
9 $HANDSEED
5 100
9 $TILEMODE
70 1
0 ENDSEC
0 SECTION
2 TABLES
0 TABLE
2 LTYPE
5 3
70 2
0 LTYPE
5 30
2 Continuous
0 LTYPE
5 31
2 Dashed
0 ENDTAB
0 TABLE
2 LAYER
5 2
70 3
0 LAYER
5 10
2 0
70 0
62 7
6 Continuous
0 LAYER
5 11
2 Wall
70 0
62 5
6 Continuous
0 LAYER
5 12
2 Door
70 0
62 1
6 Continuous
0 ENDTAB
0 TABLE
2 BLOCK_RECORD
5 1
70 3
0 BLOCK_RECORD
5 20
2 *Model_Space
0 BLOCK_RECORD
5 21
2 *Paper_Space
0 BLOCK_RECORD
5 22
2 *Paper_Space0
0 ENDTAB
0 ENDSEC
0 SECTION
2 BLOCKS
0 BLOCK
8 0
2 *Model_Space
0 ENDBLK
8 0
0 BLOCK
8 0
2 *Paper_Space
0 ENDBLK
8 0
0 BLOCK
8 0
2 *Paper_Space0
0 LINE
8 Wall
10 0
20 0
11 300
21 0
0 VIEWPORT
5 41
100 AcDbEntity
8 0
100 AcDbViewport
69 1
0 VIEWPORT
5 42
100 AcDbEntity
8 0
100 AcDbViewport
69 2
72 100
331 12
331 77
90 32864
0 ENDBLK
8 0
0 ENDSEC
0 SECTION
2 ENTITIES
0 LINE
8 Wall
10 0
20 0
11 100
21 0
0 LINE
67 1
8 Wall
10 0
20 0
11 200
21 0
0 VIEWPORT
5 50
100 AcDbEntity
67 1
8 0
100 AcDbViewport
10 5
20 4
41 8
69 4
12 5
22 4
45 8
0 VIEWPORT
5 51
100 AcDbEntity
67 1
8 0
100 AcDbViewport
69 2
90 32864
0 VIEWPORT
5 52
100 AcDbEntity
67 1
8 0
100 AcDbViewport
69 3
72 100
90 32864
0 ENDSEC
0 SECTION
2 OBJECTS
0 DICTIONARY
5 C
0 LAYOUT
5 60
100 AcDbPlotSettings
1 no name
100 AcDbLayout
1 Model
71 0
330 20
0 LAYOUT
5 61
100 AcDbPlotSettings
1 no name
100 AcDbLayout
1 A1
71 2
330 21
331 52
0 LAYOUT
5 62
100 AcDbPlotSettings
1 no name
100 AcDbLayout
1 A0
71 1
330 22
331 41
0 ENDSEC
0 EOF
)";
    QByteArray text;
    for (const QByteArray& line : lines.split('\n')) {
        const int blank = line.indexOf(' ');
        if (blank > 0)
            text += line.left(blank).rightJustified(3) + '\n' + line.mid(blank + 1) + '\n';
    }
    return text;
}
