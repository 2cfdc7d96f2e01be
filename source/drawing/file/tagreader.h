#pragma once

#include "tagscan.h"

#include <QByteArray>

namespace drawing {

/// Walks over the tags of some bytes. Stops at their end, at a tag that is cut off, and where no
/// tag stands; `broken()` tells the last two from the first.
class TagReader
{
public:
    /// `bytes` must outlive the reader and its tags; `base` is the file offset of its first byte.
    explicit TagReader(std::string_view bytes, qint64 base = 0, Spelling spelling = Spelling::Text)
        : m_next(bytes.data()),
          m_end(bytes.data() + bytes.size()),
          m_origin(bytes.data() - base),
          m_spelling(spelling)
    {
    }

    TagReader(const QByteArray& bytes, Spelling spelling) : TagReader(viewOf(bytes), 0, spelling) {}

    /// Reads the next tag; false, with `tag` untouched, when there is none.
    bool next(Tag& tag) { return read(tag) == ScanResult::Tag; }
    /// The same, with the reason. The reader stays where it is when nothing could be read.
    ScanResult read(Tag& tag);
    /// The same of a file that is known to be spelled so.
    template <Spelling spelling>
    [[gnu::always_inline]] ScanResult readAs(Tag& tag)
    {
        m_last = scanAs<spelling>(m_next, m_end, tag);
        if (m_last != ScanResult::Tag)
            return m_last;
        tag.spelling = m_spelling;
        tag.origin = m_origin;
        m_next = tag.after;
        return m_last;
    }
    Spelling spelling() const { return m_spelling; }
    bool isCutOff() const { return m_last == ScanResult::CutOff; }
    bool broken() const { return m_last != ScanResult::Tag && m_last != ScanResult::End; }

    /// Goes on with `tag`, which was read from the same bytes.
    void backTo(const Tag& tag) { m_next = tag.first; }
    /// File offset of the tag that `next` reads next.
    qint64 offset() const { return m_next - m_origin; }
    /// File offset behind the last byte.
    qint64 end() const { return m_end - m_origin; }

private:
    const char* m_next = nullptr;
    const char* m_end = nullptr;
    const char* m_origin = nullptr;
    Spelling m_spelling = Spelling::Text;
    ScanResult m_last = ScanResult::Tag;
};

} // namespace drawing
