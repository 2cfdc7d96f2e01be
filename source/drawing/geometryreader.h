#pragma once

#include "drawing.h"
#include "geometrydefinition.h"
#include "geometrytags.h"

#include <cstddef>

namespace drawing {

/// Turns entities into the shapes, texts and block references that draw them.
class EntityReader
{
public:
    explicit EntityReader(const Drawing& drawing);

    /// Adds entity `index` to `definition` with what follows it as its own (vertices, attributes).
    /// `inBlock`: attribute definitions are left out there, the references bring the attributes.
    void read(std::size_t index, bool inBlock, Definition& definition);

private:
    using Handler = void (EntityReader::*)();
    struct HandlerRow;
    static const HandlerRow kHandlers[];

    void line();
    void lwPolyline();
    void polyline();
    void circle();
    void arc();
    void ellipse();
    void spline();
    void point();
    void text();
    void attribute();
    void attributeDefinition();
    void mtext();
    void insert();
    void solid();
    void face();
    void hatch();
    void dimension();
    void leader();
    void image();

    void flatPolyline(bool closed);
    void meshPolyline(qint64 flags);
    void polyface();
    void attributes();
    Transform3 plane() const;
    bool addText(QString value, TextRun::Vertical vertical);
    void addMTextLines(const QStringList& lines, const Transform3& place, double height);
    void addShape(Primitive::Shape shape, const Path& path, const Transform3& place = {});
    void addReference(const QString& name, Definition::Reference reference);
    EntityStyle style() const;

    const Drawing& m_drawing;
    LayerId m_layerZero = LayerId::None;
    EntityTags m_tags;
    std::size_t m_index = 0;
    bool m_inBlock = false;
    LayerId m_owner = LayerId::None;
    Definition* m_definition = nullptr;
};

} // namespace drawing
