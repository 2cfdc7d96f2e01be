#include "wholepart.h"

#include "file/drawingfile.h"
#include "file/groupcode.h"

namespace drawing {

namespace {

/// Whether the last intact entity is in a sequence of vertices or attributes without an end mark.
bool endsWithinSequence(const EntityIndex& index, qint64 wholeEnd)
{
    auto last = index.entities.rbegin();
    while (last != index.entities.rend() && last->begin >= wholeEnd)
        ++last;
    if (last == index.entities.rend() || last->end != wholeEnd)
        return false;
    return last->kind == EntityKind::Polyline ||
           (last->subEntity && last->kind != EntityKind::Seqend);
}

/// The end mark of a sequence or block, on layer 0.
QByteArray endMark(const TagStyle& style, const char* type, bool markers, const char* subclass)
{
    QByteArray mark = style.tag(group::kType, type);
    if (markers)
        mark += style.tag(group::kSubclass, "AcDbEntity");
    mark += style.tag(group::kLayer, "0");
    return markers && subclass ? mark + style.tag(group::kSubclass, subclass) : mark;
}

} // namespace

bool hasWholePart(const IndexFault& fault)
{
    const bool isCut =
        fault.kind == IndexFaultKind::CutOff || fault.kind == IndexFaultKind::BadCode ||
        fault.kind == IndexFaultKind::TooLong || fault.kind == IndexFaultKind::SectionNotEnded;
    return isCut && fault.wholeEnd >= 0;
}

QByteArray wholePart(const DrawingFile& file, const IndexFault& fault, const FileIndex& index,
    const EntityIndex& entities)
{
    const TagStyle style = file.styleOf({index.firstSection, fault.wholeEnd});
    const bool markers = FormatLimits::of(index.header[HeaderVariable::Version].trimmed()).markers;
    QByteArray part = bytesOf(file.bytes().substr(0, static_cast<size_t>(fault.wholeEnd)));
    if (!isBinary(style.spelling) && !part.endsWith(style.lineEnd.back()))
        part += style.lineEnd;
    if (endsWithinSequence(entities, fault.wholeEnd))
        part += endMark(style, "SEQEND", markers, nullptr);
    if (fault.inBlock)
        part += endMark(style, "ENDBLK", markers, "AcDbBlockEnd");
    if (fault.inTable)
        part += style.tag(group::kType, "ENDTAB");
    if (fault.inSection)
        part += style.tag(group::kType, "ENDSEC");
    return part + style.tag(group::kType, "EOF");
}

} // namespace drawing
