#pragma once

#include "groupcode.h"
#include "taglist.h"
#include "tagreader.h"

#include <vector>

namespace drawing {

/// The group that holds the handle of an extension dictionary.
constexpr char kExtensionGroup[] = "{ACAD_XDICTIONARY";

/// The part of a record, object or entity that a tag belongs to.
enum class TagPart : quint8 {
    Own,      ///< The data of the record itself.
    Group,    ///< A group in braces: application data, reactors or the extension dictionary.
    Embedded, ///< An embedded object, which uses the same group codes for other purposes.
    Xdata     ///< Extended data of applications, after everything else.
};

/// Determines the part that each tag belongs to. Tags must be passed in their order.
class TagSorter
{
public:
    TagPart take(const Tag& tag);

    /// The subclass of the last tag; empty before the first subclass marker.
    std::string_view subclass() const { return m_subclass; }
    /// The name of the group that contains the last tag, including its brace; empty outside of
    /// groups.
    std::string_view group() const { return m_group; }
    /// Whether the last tag opened that group.
    bool opensGroup() const { return m_opensGroup; }
    /// The application of the last tag when it is extended data.
    std::string_view application() const { return m_application; }

private:
    void takeBrace(const Tag& tag);

    std::string_view m_subclass;
    std::string_view m_group;
    std::string_view m_application;
    TagPart m_part = TagPart::Own;
    bool m_opensGroup = false;
    bool m_isGroupClosed = false; // The last tag was a closing brace.
};

/// Iterates over the own tags of a record. In an XRECORD, which may hold anything, these are its
/// data including all groups in it.
class OwnTags
{
public:
    explicit OwnTags(const TagReader& tags) : m_tags(tags) {}

    /// Reads the next own tag; false when there is none.
    bool next(Tag& tag);
    /// Reads the next tag of any part except embedded objects; false when there is none.
    bool nextOfAll(Tag& tag);
    TagPart part() const { return m_part; }
    const TagSorter& place() const { return m_sorter; }

private:
    TagReader m_tags;
    TagSorter m_sorter;
    TagPart m_part = TagPart::Own;
};

/// The record's first own tag with this code; a null tag when there is none.
Tag findOwn(const TagReader& tags, int code);
/// The index of the first own tag with this code, or of the last one when `last` is set;
/// `TagList::kNone` when there is none.
int findOwn(const TagList& tags, int code, bool last = false);

/// The handle of a record, object or entity; 0 when it has none.
quint64 ownHandle(const TagReader& tags);
/// The handle of the extension dictionary of a record, object or table head; 0 when it has none.
quint64 extensionOf(const TagReader& tags);

} // namespace drawing
