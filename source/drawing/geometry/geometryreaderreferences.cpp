#include "geometryreader.h"

#include "entities/entitytable.h"
#include "file/groupcode.h"
#include "file/owntags.h"

#include <algorithm>
#include <limits>

namespace drawing {

void EntityReader::insert()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    const auto bounded = [](qint64 count) {
        return static_cast<int>(std::clamp<qint64>(count, 1, std::numeric_limits<int>::max()));
    };
    const auto factor = [this](int code) {
        const double value = m_tags.number(code, 1);
        return value != 0 ? value : 1;
    };
    Definition::Reference reference;
    reference.style = style();
    reference.columns = bounded(m_tags.integer(70, 1));
    reference.rows = bounded(m_tags.integer(71, 1));
    const Transform3 frame = plane() * Transform3::turnedAt(m_tags.point(10), m_tags.number(50));
    reference.columnStep = frame.mapDirection({m_tags.number(44), 0, 0});
    reference.rowStep = frame.mapDirection({0, m_tags.number(45), 0});
    reference.place = frame * Transform3::scaling({factor(41), factor(42), factor(43)});
    addReference(m_source.file.decoded(name->trimmed()), reference);
    attributes();
}

void EntityReader::attributes()
{
    const auto& entities = m_source.entities.all();
    m_owner = entities[m_index].layer;
    while (m_index + 1 < entities.size() && entities[m_index + 1].subEntity) {
        ++m_index;
        if (entities[m_index].removed)
            continue;
        load(m_index);
        if (m_tags.type() == "ATTRIB" && m_tags.integer(60) != 1)
            attribute();
    }
}

/// Draws a dimension by its block, which is already at the right position.
void EntityReader::dimension()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    Definition::Reference reference;
    reference.style = style();
    reference.isWhole = true;
    reference.place = Transform3::translation(plane().map(m_tags.point(12)));
    addReference(m_source.file.decoded(name->trimmed()), reference);
}

/// Draws a table by its block, which contains the whole picture.
void EntityReader::table()
{
    const Tag* name = m_tags.find(2);
    if (!name)
        return;
    const Vec3 x = m_tags.find(11) ? m_tags.point(11).normalized() : Vec3{1, 0, 0};
    const Vec3 z = m_tags.extrusion().normalized();
    Definition::Reference reference;
    reference.style = style();
    reference.isWhole = true;
    reference.place = Transform3(x, Vec3::cross(z, x), z, m_tags.point(10));
    addReference(m_source.file.decoded(name->trimmed()), reference);
}

void EntityReader::addBlock(quint64 record, Definition::Reference reference)
{
    for (const ByteRange& candidate : m_source.file.table(TableKind::BlockRecord).records) {
        const TagReader tags = m_source.file.tags(candidate);
        if (ownHandle(tags) != record)
            continue;
        addReference(m_source.file.decoded(findOwn(tags, group::kName).trimmed()), reference);
        return;
    }
}

void EntityReader::addReference(const QString& name, Definition::Reference reference)
{
    const int block = m_source.entities.block(name);
    if (block < 0)
        return;
    const Block& definition = m_source.entities.blocks()[static_cast<std::size_t>(block)];
    reference.block = block;
    reference.place =
        reference.place * Transform3::translation({-definition.baseX, -definition.baseY, 0});
    const bool finite = reference.place.isFinite() && reference.columnStep.isFinite() &&
                        reference.rowStep.isFinite();
    if (finite)
        m_definition->references.push_back(reference);
}

} // namespace drawing
