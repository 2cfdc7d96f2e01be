#include "drawingfile.h"

#include "groupcode.h"
#include "insertionorder.h"

#include <algorithm>
#include <tuple>

namespace drawing {

bool DrawingFile::State::operator==(const State& other) const
{
    return std::tie(handlesTaken, recordsMade, recordsAdded, newAppIds) ==
           std::tie(other.handlesTaken, other.recordsMade, other.recordsAdded, other.newAppIds);
}

void DrawingFile::setBytes(std::string_view bytes)
{
    const FileForm form = FileForm::of(bytes);
    m_bytes = bytes;
    m_spelling = form.spelling;
    m_firstTag = form.begin;
    m_journal = EditJournal(bytes);
}

void DrawingFile::setIndex(FileIndex index, const TextCodec& codec, const FormatLimits& limits)
{
    m_index = std::move(index);
    m_codec = codec;
    m_limits = limits;
    m_tables.load();
}

std::string_view DrawingFile::view(const ByteRange& range) const
{
    if (range.isNull())
        return {};
    return m_bytes.substr(
        static_cast<size_t>(range.begin), static_cast<size_t>(range.end - range.begin));
}

TagReader DrawingFile::tags(const ByteRange& range) const
{
    return TagReader(view(range), range.isNull() ? 0 : range.begin, m_spelling);
}

TagReader DrawingFile::allTags() const
{
    return TagReader(m_bytes.substr(m_firstTag), static_cast<qint64>(m_firstTag), m_spelling);
}

TagReader DrawingFile::headerTags() const
{
    return tags({m_index.firstSection, std::max(m_index.firstSection, m_index.headerEnd)});
}

ByteRange DrawingFile::valueRange(qint64 offset) const
{
    const char* const end = m_bytes.data() + m_bytes.size();
    return {offset, valueEnd(m_bytes.data() + offset, end, m_spelling) - m_bytes.data()};
}

TagStyle DrawingFile::styleOf(const ByteRange& range) const
{
    return TagStyle::of(view(range), m_spelling);
}

void DrawingFile::writeVariable(HeaderVariable which, const QByteArray& text)
{
    const Tag& old = variable(which);
    const TagStyle style = m_tables.sectionStyle();
    if (old.isNull())
        addVariable(which, style.tag(nameOf(which).code, text));
    else
        m_journal.overwrite(old.valueRange(), kNewVariables + static_cast<quint32>(which),
            style.value(old.code, text));
}

void DrawingFile::writeVariable(HeaderVariable which, qint64 number)
{
    const Tag& old = variable(which);
    if (old.isNull())
        addVariable(which, m_tables.sectionStyle().number(nameOf(which).code, number));
    else
        m_journal.overwrite(old.valueRange(), kNewVariables + static_cast<quint32>(which),
            numberInPlace(old, number));
}

/// Adds a variable and, if necessary, the section for it.
void DrawingFile::addVariable(HeaderVariable which, const QByteArray& tag)
{
    const TagStyle style = m_tables.sectionStyle();
    const qint64 at = m_index.headerEnd >= 0 ? m_index.headerEnd : m_index.firstSection;
    m_journal.insert(at, kNewVariables + static_cast<quint32>(which),
        style.tag(group::kVariable, bytesOf(nameOf(which).name)) + tag);
    if (m_index.headerEnd >= 0)
        return;
    m_journal.insert(
        at, kHeaderHead, style.tag(group::kType, "SECTION") + style.tag(group::kName, "HEADER"));
    m_journal.insert(at, kHeaderTail, style.tag(group::kType, "ENDSEC"));
}

quint64 DrawingFile::takeHandle()
{
    if (!m_limits.markers)
        return 0;
    if (m_freeHandle == 0)
        m_freeHandle = firstFreeHandle();
    const quint64 handle = m_freeHandle + m_state.handlesTaken++;
    writeVariable(HeaderVariable::HandleSeed, handleText(handle + 1));
    return handle;
}

qint64 DrawingFile::newHandleNumber(quint64 handle) const
{
    return m_freeHandle != 0 && handle >= m_freeHandle ? static_cast<qint64>(handle - m_freeHandle)
                                                       : -1;
}

/// The lowest handle that is certainly free in the original file, according to the used handles and
/// to the seed.
quint64 DrawingFile::firstFreeHandle() const
{
    constexpr quint64 kHighest = quint64(1) << 62;
    const Tag& seed = variable(HeaderVariable::HandleSeed);
    quint64 free = std::max<quint64>(seed.handle(), 1);
    // Some programs write a seed that is already in use.
    TagReader tags = allTags();
    Tag tag;
    while (tags.next(tag)) {
        const bool isHandle = tag.code == group::kHandle || tag.code == group::kDimStyleHandle;
        if (!isHandle || tag.value == seed.value)
            continue;
        const quint64 handle = tag.handle();
        if (handle >= free && handle < kHighest)
            free = handle + 1;
    }
    return free;
}

} // namespace drawing
