#include "layerobjects.h"

#include "dxfnames.h"
#include "handles.h"
#include "layerstates.h"
#include "objectedits.h"
#include "taglist.h"

#include <unordered_set>

namespace drawing {

namespace {

/// Where an XRECORD's own data begin.
int dataBegin(const TagList& tags)
{
    const int marker = tags.find(100, 0, tags.size());
    return marker == TagList::kNone ? tags.size() : marker + 1;
}

class ObjectUpdate
{
public:
    ObjectUpdate(DrawingData& data, const LayerRenames& renames) : m_data(data), m_renames(renames)
    {
    }

    void run();

private:
    using Rewrite = void (ObjectUpdate::*)(TagList&) const;

    void rewrite(const ObjectPlace& object, Rewrite how) const;
    void rewriteAll(const ObjectPlace* dictionary, Rewrite how) const;
    void rewriteList(TagList& tags) const;
    void rewriteState(TagList& tags) const;
    void rewriteFilter(TagList& tags) const;
    void rewriteGroup(TagList& tags) const;
    QString keyAt(const TagList& tags, int at) const;
    bool renameAt(TagList& tags, int at) const;
    QString renamedPattern(const QString& pattern) const;
    void forgetAt(TagList& tags, int at) const;
    bool isRemoved(const TagList& tags, int at) const;

    DrawingData& m_data;
    const LayerRenames& m_renames;
};

void ObjectUpdate::run()
{
    for (const ObjectPlace& object : m_data.index.objects) {
        if (object.kind == ObjectKind::LayerList)
            rewrite(object, &ObjectUpdate::rewriteList);
    }
    const TablePlace& table = m_data.index.table(TableKind::Layer);
    const quint64 handle = extensionDictionary(m_data.tags(table.head));
    const ObjectPlace* extension = handle != 0 ? m_data.objectByHandle(handle) : nullptr;
    LayerStates(m_data).rewrite([this](TagList& tags) { rewriteState(tags); });
    rewriteAll(
        dictionaryEntry(m_data, extension, "ACAD_LAYERFILTERS"), &ObjectUpdate::rewriteFilter);
    rewriteAll(dictionaryEntry(m_data, extension, "ACLYDICTIONARY"), &ObjectUpdate::rewriteGroup);
}

void ObjectUpdate::rewriteAll(const ObjectPlace* dictionary, Rewrite how) const
{
    for (const ObjectPlace* object : dictionaryObjects(m_data, dictionary)) {
        if (object->kind == ObjectKind::XRecord)
            rewrite(*object, how);
    }
}

void ObjectUpdate::rewrite(const ObjectPlace& object, Rewrite how) const
{
    const QByteArray before = m_data.journal.current(object.range);
    TagList tags = m_data.tagList(before);
    (this->*how)(tags);
    const QByteArray after = tags.bytes();
    if (after != before)
        m_data.journal.replace(object.range, after);
}

/// The name at this tag as a key.
QString ObjectUpdate::keyAt(const TagList& tags, int at) const
{
    return m_data.codec.decode(tags.trimmed(at)).toCaseFolded();
}

bool ObjectUpdate::renameAt(TagList& tags, int at) const
{
    const auto renamed = m_renames.newNames.constFind(keyAt(tags, at));
    if (renamed == m_renames.newNames.constEnd())
        return false;
    tags.setText(at, m_data.codec.encode(*renamed));
    return true;
}

/// The current layer of a state may not be one that is gone: its heir takes its place, or layer 0.
void ObjectUpdate::forgetAt(TagList& tags, int at) const
{
    const QString key = keyAt(tags, at);
    if (m_renames.removedNames.contains(key))
        tags.setText(at, m_data.codec.encode(m_renames.heirs.value(key, QStringLiteral("0"))));
}

/// The new name of a layer as a pattern, where `pattern` is a name and that layer got a new one or
/// was merged.
QString ObjectUpdate::renamedPattern(const QString& pattern) const
{
    const QLatin1Char escape('`');
    const QString name = QString(pattern).remove(escape);
    const QString key = name.toCaseFolded();
    const QString renamed = m_renames.newNames.value(key, m_renames.heirs.value(key));
    QString escaped;
    for (const QChar c : renamed) {
        if (QStringLiteral("#@[]~").contains(c))
            escaped += escape;
        escaped += c;
    }
    return escaped;
}

bool ObjectUpdate::isRemoved(const TagList& tags, int at) const
{
    if (tags.code(at) == 330)
        return m_renames.removedHandles.contains(tags.handle(at));
    return tags.code(at) == 8 && m_renames.removedNames.contains(keyAt(tags, at));
}

/// A list of layers: what belongs to one runs from its name to the next name. An heir that is not
/// listed itself takes the place of a merged layer.
void ObjectUpdate::rewriteList(TagList& tags) const
{
    std::vector<int> keep;
    QSet<QString> listed;
    for (int at = 0; at < tags.size(); ++at) {
        if (tags.code(at) == 8)
            listed.insert(keyAt(tags, at));
    }
    bool isKept = true;
    for (int at = 0; at < tags.size(); ++at) {
        const int code = tags.code(at);
        if (code == 8) {
            const QString key = keyAt(tags, at);
            const QString heir = m_renames.heirs.value(key).toCaseFolded();
            isKept = !m_renames.removedNames.contains(key) ||
                     (!heir.isEmpty() && !listed.contains(heir));
            if (isKept && !renameAt(tags, at))
                forgetAt(tags, at);
            listed.insert(heir);
        }
        isKept = isKept || code == 100 || code == 1001;
        if (isKept)
            keep.push_back(at);
        else if (code == 360)
            removeOwnedObjects(m_data, tags.handle(at));
    }
    tags.keepOnly(keep);
}

/// A layer state: a layer's tags run from its handle or name to the next layer's.
void ObjectUpdate::rewriteState(TagList& tags) const
{
    std::vector<int> keep;
    bool isKept = true;
    const int begin = dataBegin(tags);
    for (int at = 0; at < tags.size(); ++at) {
        const bool isData = at >= begin;
        const int code = tags.code(at);
        if (isData && (code == 8 || code == 330 || code == 1001))
            isKept = code == 1001 || !isRemoved(tags, at);
        if (isKept && isData && (code == 8 || code == 302) && !renameAt(tags, at) && code == 302)
            forgetAt(tags, at);
        if (isKept)
            keep.push_back(at);
    }
    tags.keepOnly(keep);
}

/// A filter of the older kind: its own name, then the pattern of layer names.
void ObjectUpdate::rewriteFilter(TagList& tags) const
{
    const int own = tags.find(1, dataBegin(tags), tags.size());
    const int pattern = own == TagList::kNone ? own : tags.find(1, own + 1, tags.size());
    if (pattern == TagList::kNone)
        return;
    const QString renamed = renamedPattern(m_data.codec.decode(tags.trimmed(pattern)));
    if (!renamed.isEmpty())
        tags.setText(pattern, m_data.codec.encode(renamed));
}

/// A filter of the newer kind: a group lists handles, a filter compares names in its
/// expression.
void ObjectUpdate::rewriteGroup(TagList& tags) const
{
    std::vector<int> keep;
    const int begin = dataBegin(tags);
    for (int at = 0; at < tags.size(); ++at) {
        if (at < begin || tags.code(at) != 330 || !isRemoved(tags, at))
            keep.push_back(at);
        if (at < begin || tags.code(at) != 301)
            continue;
        QString expression = m_data.codec.decode(tags.text(at));
        const int name = expression.indexOf(QLatin1String("NAME==\""), 0, Qt::CaseInsensitive);
        const int from = name + 7;
        const int to = name < 0 ? -1 : expression.indexOf(QLatin1Char('"'), from);
        const QString renamed =
            to < 0 ? QString() : renamedPattern(expression.mid(from, to - from));
        if (!renamed.isEmpty())
            tags.setText(at, m_data.codec.encode(expression.replace(from, to - from, renamed)));
    }
    tags.keepOnly(keep);
}

} // namespace

void updateLayerObjects(DrawingData& data, const LayerRenames& renames)
{
    ObjectUpdate(data, renames).run();
}

void removeOwnedObjects(DrawingData& data, quint64 handle)
{
    ObjectEdits objects(data);
    std::unordered_set<quint64> seen;
    std::vector<quint64> open = {handle};
    while (!open.empty()) {
        const quint64 next = open.back();
        open.pop_back();
        const TagList tags = data.tagList(next != 0 ? objects.bytes(next) : QByteArray());
        if (tags.size() == 0 || !seen.insert(next).second)
            continue;
        const bool isDictionary = objectKind(tags.trimmed(0)) == ObjectKind::Dictionary;
        for (int at = 0; at < tags.size(); ++at) {
            if (tags.code(at) == 360 || (tags.code(at) == 350 && isDictionary))
                open.push_back(tags.handle(at));
        }
        objects.erase(next);
    }
}

} // namespace drawing
