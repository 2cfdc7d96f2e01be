#include "owntags.h"

namespace drawing {

namespace {

constexpr std::string_view kDataOnly = "AcDbXrecord";

} // namespace

TagPart TagSorter::take(const Tag& tag)
{
    if (m_isGroupClosed)
        m_group = {};
    m_isGroupClosed = false;
    m_opensGroup = false;
    if (tag.code >= group::kXdata || m_part == TagPart::Xdata) {
        if (tag.code == group::kApplication)
            m_application = tag.trimmed();
        m_group = {};
        return m_part = TagPart::Xdata;
    }
    if (tag.code == group::kEmbedded || m_part == TagPart::Embedded)
        return m_part = TagPart::Embedded;
    if (tag.code == group::kBrace)
        takeBrace(tag);
    if (tag.code == group::kSubclass) {
        m_subclass = tag.trimmed();
        m_group = {}; // A group that was never closed ends here.
    }
    return m_part = m_group.empty() || m_subclass == kDataOnly ? TagPart::Own : TagPart::Group;
}

void TagSorter::takeBrace(const Tag& tag)
{
    const std::string_view text = tag.trimmed();
    m_opensGroup = !text.empty() && text.front() == '{';
    m_isGroupClosed = !m_opensGroup;
    if (m_opensGroup)
        m_group = text;
}

bool OwnTags::nextOfAll(Tag& tag)
{
    while (m_tags.next(tag)) {
        m_part = m_sorter.take(tag);
        if (m_part != TagPart::Embedded)
            return true;
    }
    return false;
}

bool OwnTags::next(Tag& tag)
{
    while (nextOfAll(tag) && m_part != TagPart::Xdata) {
        if (m_part == TagPart::Own)
            return true;
    }
    return false;
}

Tag findOwn(const TagReader& tags, int code)
{
    OwnTags own(tags);
    Tag tag;
    while (own.next(tag)) {
        if (tag.code == code)
            return tag;
    }
    return {};
}

int findOwn(const TagList& tags, int code, bool last)
{
    TagSorter sorter;
    int found = TagList::kNone;
    for (int at = 0; at < tags.size() && (last || found == TagList::kNone); ++at) {
        if (sorter.take(tags.tag(at)) == TagPart::Own && tags.code(at) == code)
            found = at;
    }
    return found;
}

quint64 ownHandle(const TagReader& tags)
{
    return findOwn(tags, group::kHandle).handle();
}

quint64 extensionOf(const TagReader& tags)
{
    OwnTags all(tags);
    Tag tag;
    while (all.nextOfAll(tag)) {
        if (tag.code == group::kHardOwner && all.place().group() == kExtensionGroup)
            return tag.handle();
    }
    return 0;
}

} // namespace drawing
