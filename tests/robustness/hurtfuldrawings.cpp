#include "hurtfuldrawings.h"

#include <QIODevice>

namespace {

constexpr qint64 kChunk = 1 << 20;

constexpr char kHead[] = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n"
                         "2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\n0\n70\n0\n62\n7\n";
constexpr char kBlocks[] = "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n";
constexpr char kEntities[] = "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
constexpr char kEnd[] = "0\nENDSEC\n0\nEOF\n";

QByteArray insert(const QByteArray& block, const QByteArray& more = {})
{
    return "0\nINSERT\n8\n0\n2\n" + block + "\n10\n1.0\n20\n1.0\n" + more;
}

QByteArray block(const QByteArray& name, const QByteArray& content)
{
    return "0\nBLOCK\n8\n0\n2\n" + name + "\n10\n0\n20\n0\n" + content + "0\nENDBLK\n8\n0\n";
}

const QByteArray kLine = "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n";
const QByteArray kText = "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n1\n1\ntext\n";

void writeAll(QIODevice& file, const QByteArray& blocks, const QByteArray& entities)
{
    file.write(QByteArray(kHead) + kBlocks + blocks + kEntities + entities + kEnd);
}

void writeNested(QIODevice& file, qint64 depth)
{
    file.write(QByteArray(kHead) + kBlocks);
    for (qint64 i = 0; i < depth; ++i)
        file.write(
            block('B' + QByteArray::number(i), kLine + insert('B' + QByteArray::number(i + 1))));
    file.write(block('B' + QByteArray::number(depth), kLine) + kEntities + insert("B0") + kEnd);
}

/// Each block contains the previous one twice, which gives two to the power of `depth` instances.
void writeDoubling(QIODevice& file, qint64 depth)
{
    file.write(QByteArray(kHead) + kBlocks + block("B0", kLine));
    for (qint64 i = 1; i <= depth; ++i) {
        const QByteArray inner = insert('B' + QByteArray::number(i - 1));
        file.write(block('B' + QByteArray::number(i), inner + inner));
    }
    file.write(kEntities + insert('B' + QByteArray::number(depth)) + kEnd);
}

void writeSelfContained(QIODevice& file, qint64 copies)
{
    writeAll(file, block("A", kLine + insert("B")) + block("B", kLine + insert("A") + insert("B")),
        insert("A").repeated(static_cast<int>(copies)));
}

/// A block with `count` empty blocks that is inserted `count` times, so that `count` squared
/// instances are visited.
void writeEmptyBlocks(QIODevice& file, qint64 count)
{
    const auto times = static_cast<int>(count);
    writeAll(file, block("EMPTY", {}) + block("FULL", insert("EMPTY").repeated(times)),
        insert("FULL").repeated(times));
}

void writeRows(QIODevice& file, qint64 rows)
{
    const QByteArray count = QByteArray::number(rows);
    writeAll(file, block("A", kLine + kLine + kText + kText),
        insert("A", "70\n" + count + "\n71\n" + count + "\n44\n1\n45\n1\n"));
}

void writeStrangeNumbers(QIODevice& file, qint64 copies)
{
    QByteArray entities;
    for (const char* number : {"nan", "inf", "-inf", "1e308", "-1e999", "1e-320", "x"}) {
        const QByteArray n = QByteArray(number) + '\n';
        for (const char* kind : {"CIRCLE", "ARC", "ELLIPSE", "TEXT", "INSERT", "SPLINE", "RAY",
                 "LINE", "LWPOLYLINE", "SOLID"})
            entities += QByteArray("0\n") + kind + "\n8\n0\n2\nA\n1\ntext\n90\n2\n70\n2\n10\n" + n +
                        "20\n1\n42\n" + n + "10\n1\n20\n" + n + "11\n" + n + "21\n1\n40\n" + n +
                        "41\n" + n + "50\n" + n + "51\n" + n;
    }
    writeAll(file, block("A", kLine), entities.repeated(static_cast<int>(copies)));
}

void writeOneLine(QIODevice& file, const QByteArray& before, qint64 bytes)
{
    file.write(QByteArray(kHead) + kBlocks + kEntities + before);
    const QByteArray chunk(static_cast<int>(kChunk), 'A');
    for (qint64 left = bytes; left > 0; left -= kChunk)
        file.write(chunk.left(static_cast<int>(std::min(left, kChunk))));
    file.write(QByteArray("\n") + kEnd);
}

void writeLongLine(QIODevice& file, qint64 bytes)
{
    writeOneLine(file, "0\nTEXT\n8\n0\n40\n1\n1\n", bytes);
}

void writeLongName(QIODevice& file, qint64 bytes)
{
    writeOneLine(file, "0\nLINE\n8\n", bytes);
}

void writeLayers(QIODevice& file, qint64 layers)
{
    file.write(kHead);
    for (qint64 i = 0; i < layers; ++i)
        file.write("0\nLAYER\n2\nL" + QByteArray::number(i) + "\n70\n0\n62\n7\n6\nContinuous\n");
    file.write(QByteArray(kBlocks) + kEntities + kLine + kEnd);
}

void writeCutOff(QIODevice& file, qint64 lines)
{
    file.write(QByteArray(kHead) + kBlocks + kEntities);
    for (qint64 i = 0; i < lines; ++i)
        file.write(kLine);
}

} // namespace

const HurtfulDrawing kHurtfulDrawings[] = {
    {"nested-blocks", 10'000, 10'000, "", 60, writeNested},
    {"doubling-blocks", 60, 60, "", 120, writeDoubling},
    {"self-contained-block", 1'000, 100'000, "", 60, writeSelfContained},
    {"empty-blocks", 30'000, 300'000, "", 60, writeEmptyBlocks},
    {"insert-rows", 50'000'000, 2'000'000'000, "", 600, writeRows},
    {"strange-numbers", 100, 10'000, "", 60, writeStrangeNumbers},
    {"long-text", 15 * kChunk, 15 * kChunk, "", 140, writeLongLine},
    {"long-line", 32 * kChunk, 1024 * kChunk, "太长", 40, writeLongLine},
    {"long-name", 32 * kChunk, 1024 * kChunk, "太长", 40, writeLongName},
    {"layers", 100'000, 2'000'000, "", 100, writeLayers},
    {"cut-off", 1'000, 1'000'000, "EOF", 40, writeCutOff},
    {nullptr, 0, 0, nullptr, 0, nullptr},
};
