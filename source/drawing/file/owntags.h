#pragma once

#include "groupcode.h"
#include "taglist.h"
#include "tagreader.h"

#include <vector>

namespace drawing {

/// The group in which the handle of an extension dictionary stands.
constexpr char kExtensionGroup[] = "{ACAD_XDICTIONARY";

/// Whose a tag of a record, an object or an entity is.
enum class TagPart : quint8 {
    Own,      ///< What it says itself.
    Group,    ///< Of an application, between braces; reactors and extension dictionaries too.
    Embedded, ///< Of an object within it, which uses the same codes for other things.
    Xdata     ///< Of applications, behind all else.
};

/// Tells the tags of one record apart, taken one after the other.
class TagSorter
{
public:
    TagPart take(const Tag& tag);

    /// The subclass that the last tag belongs to; empty before the first marker.
    std::string_view subclass() const { return m_subclass; }
    /// What the group around the last tag is called, with its brace; empty outside of groups.
    std::string_view group() const { return m_group; }
    /// Whether the last tag began that group.
    bool opensGroup() const { return m_opensGroup; }
    /// The application of the last tag, in the extended data.
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

/// Walks over a record's own tags. Those of an XRECORD, which may hold anything, are its data with
/// all groups in it.
class OwnTags
{
public:
    explicit OwnTags(const TagReader& tags) : m_tags(tags) {}

    /// The next own tag; false when there is none.
    bool next(Tag& tag);
    /// The next tag of any part but embedded objects; false when there is none.
    bool nextOfAll(Tag& tag);
    TagPart part() const { return m_part; }
    const TagSorter& place() const { return m_sorter; }

private:
    TagReader m_tags;
    TagSorter m_sorter;
    TagPart m_part = TagPart::Own;
};

/// The record's first own tag with this code; a null one when it has none.
Tag findOwn(const TagReader& tags, int code);
/// The same of tags taken apart; `TagList::kNone` when there is none. Where `last` is set, the last
/// one.
int findOwn(const TagList& tags, int code, bool last = false);

/// Handle of a record, an object or an entity itself; 0 when it has none.
quint64 ownHandle(const TagReader& tags);
/// Handle of the extension dictionary of a record, an object or a table's head; 0 without one.
quint64 extensionOf(const TagReader& tags);

} // namespace drawing
