#pragma once

#include "tagscan.h"

#include <QByteArray>

namespace drawing {

/// Reads the tags in a range of bytes one by one. It stops at the end, at a truncated tag, and
/// where there is no tag; `broken()` distinguishes the last two cases from the first.
class TagReader
{
public:
    /// `bytes` must outlive the reader and its tags. `base` is the file offset of the first byte.
    explicit TagReader(std::string_view bytes, qint64 base = 0, Spelling spelling = Spelling::Text)
        : m_next(bytes.data()),
          m_end(bytes.data() + bytes.size()),
          m_origin(bytes.data() - base),
          m_spelling(spelling)
    {
    }

    TagReader(const QByteArray& bytes, Spelling spelling) : TagReader(viewOf(bytes), 0, spelling) {}

    /// Reads the next tag. Returns false and leaves `tag` unchanged when there is none.
    bool next(Tag& tag) { return read(tag) == ScanResult::Tag; }
    /// Reads the next tag and returns the reason when there is none. The reader then keeps its
    /// position.
    ScanResult read(Tag& tag);
    /// Like `read`, for a file whose spelling is known at compile time.
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
    /// The file offset of the tag that `next` reads next.
    qint64 offset() const { return m_next - m_origin; }
    /// The file offset after the last byte.
    qint64 end() const { return m_end - m_origin; }

private:
    const char* m_next = nullptr;
    const char* m_end = nullptr;
    const char* m_origin = nullptr;
    Spelling m_spelling = Spelling::Text;
    ScanResult m_last = ScanResult::Tag;
};

} // namespace drawing
