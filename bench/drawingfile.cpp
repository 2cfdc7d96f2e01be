#include "drawingfile.h"

#include <QByteArray>
#include <QFile>

#include <random>

namespace bench {

namespace {

constexpr int kLayers = 200;
constexpr int kBlocks = 20;
constexpr int kEntitiesOfBlock = 12;

/// Writes tags as usual programs do: codes right-aligned, lines ended by CR LF, coordinates with
/// all their digits.
class DrawingWriter
{
public:
    QByteArray write(qint64 size);

private:
    void tag(int code, const QByteArray& value)
    {
        m_text += QByteArray::number(code).rightJustified(3) + "\r\n" + value + "\r\n";
    }
    void tag(int code, int value) { tag(code, QByteArray::number(value).rightJustified(6)); }
    void real(int code, double value) { tag(code, QByteArray::number(value, 'g', 16)); }
    void handle() { tag(5, QByteArray::number(m_nextHandle++, 16).toUpper()); }
    void beginSection(const char* name)
    {
        tag(0, QByteArray("SECTION"));
        tag(2, QByteArray(name));
    }
    void endSection() { tag(0, QByteArray("ENDSEC")); }
    void beginTable(const char* name, int count);
    void endTable() { tag(0, QByteArray("ENDTAB")); }
    void record(const char* kind, const char* subclass, const QByteArray& name);

    void header();
    void tables();
    void blocks();
    void entity();
    void entityHead(const char* kind, const char* subclass);
    void point(int code);
    double coordinate() { return static_cast<double>(m_random() % 100000000) / 997; }
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    QByteArray m_text;
    int m_nextHandle = 0x100;
    std::mt19937 m_random; // Its numbers are the same with every standard library.
};

QByteArray layerName(int number)
{
    return number == 0 ? QByteArray("0") : "LAYER-" + QByteArray::number(number);
}

QByteArray blockName(int number)
{
    return "BLOCK-" + QByteArray::number(number);
}

void DrawingWriter::beginTable(const char* name, int count)
{
    tag(0, QByteArray("TABLE"));
    tag(2, QByteArray(name));
    handle();
    tag(100, QByteArray("AcDbSymbolTable"));
    tag(70, count);
}

void DrawingWriter::record(const char* kind, const char* subclass, const QByteArray& name)
{
    tag(0, QByteArray(kind));
    handle();
    tag(100, QByteArray("AcDbSymbolTableRecord"));
    tag(100, QByteArray(subclass));
    tag(2, name);
    tag(70, 0);
}

void DrawingWriter::header()
{
    beginSection("HEADER");
    tag(9, QByteArray("$ACADVER"));
    tag(1, QByteArray("AC1027"));
    tag(9, QByteArray("$CLAYER"));
    tag(8, QByteArray("0"));
    tag(9, QByteArray("$HANDSEED"));
    tag(5, QByteArray("FFFFFF"));
    endSection();
}

void DrawingWriter::tables()
{
    beginSection("TABLES");
    beginTable("LTYPE", 1);
    record("LTYPE", "AcDbLinetypeTableRecord", "Continuous");
    tag(3, QByteArray("Solid line"));
    tag(72, 65);
    tag(73, 0);
    real(40, 0);
    endTable();
    beginTable("LAYER", kLayers);
    for (int number = 0; number < kLayers; ++number) {
        record("LAYER", "AcDbLayerTableRecord", layerName(number));
        tag(62, number % 255 + 1);
        tag(6, QByteArray("Continuous"));
        tag(370, -3);
    }
    endTable();
    endSection();
}

void DrawingWriter::entityHead(const char* kind, const char* subclass)
{
    tag(0, QByteArray(kind));
    handle();
    tag(330, QByteArray("1F"));
    tag(100, QByteArray("AcDbEntity"));
    tag(8, layerName(below(kLayers)));
    tag(100, QByteArray(subclass));
}

void DrawingWriter::point(int code)
{
    real(code, coordinate());
    real(code + 10, coordinate());
    real(code + 20, 0);
}

void DrawingWriter::entity()
{
    switch (below(5)) {
    case 0:
        entityHead("CIRCLE", "AcDbCircle");
        point(10);
        real(40, coordinate());
        break;
    case 1: {
        const int vertices = 4 + below(20);
        entityHead("LWPOLYLINE", "AcDbPolyline");
        tag(90, vertices);
        tag(70, 1);
        for (int vertex = 0; vertex < vertices; ++vertex) {
            real(10, coordinate());
            real(20, coordinate());
        }
        break;
    }
    case 2:
        entityHead("TEXT", "AcDbText");
        point(10);
        real(40, 2.5);
        tag(1, "Room " + QByteArray::number(below(1000)));
        tag(100, QByteArray("AcDbText"));
        break;
    default:
        entityHead("LINE", "AcDbLine");
        point(10);
        point(11);
        break;
    }
}

void DrawingWriter::blocks()
{
    beginSection("BLOCKS");
    for (int number = 0; number < kBlocks; ++number) {
        entityHead("BLOCK", "AcDbBlockBegin");
        tag(2, blockName(number));
        tag(70, 0);
        point(10);
        tag(3, blockName(number));
        for (int i = 0; i < kEntitiesOfBlock; ++i)
            entity();
        entityHead("ENDBLK", "AcDbBlockEnd");
    }
    endSection();
}

QByteArray DrawingWriter::write(qint64 size)
{
    constexpr int kEntitiesPerInsert = 10;
    m_text.reserve(static_cast<int>(size + size / 100));
    header();
    tables();
    blocks();
    beginSection("ENTITIES");
    for (int number = 0; m_text.size() < size; ++number) {
        if (number % kEntitiesPerInsert != 0) {
            entity();
            continue;
        }
        entityHead("INSERT", "AcDbBlockReference");
        tag(2, blockName(below(kBlocks)));
        point(10);
    }
    endSection();
    beginSection("OBJECTS");
    endSection();
    tag(0, QByteArray("EOF"));
    return m_text;
}

} // namespace

bool writeDrawing(const QString& path, int megabytes)
{
    constexpr int kKilobytes = 1000;
    return writeSmallDrawing(path, megabytes * kKilobytes);
}

bool writeSmallDrawing(const QString& path, int kilobytes)
{
    constexpr qint64 kKilobyte = 1000;
    const QByteArray text = DrawingWriter().write(kilobytes * kKilobyte);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace bench
