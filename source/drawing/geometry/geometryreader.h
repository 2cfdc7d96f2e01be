#pragma once

#include "file/drawingfile.h"
#include "geometrydefinition.h"
#include "geometrytags.h"
#include "geometrywidths.h"
#include "textstyles.h"

#include <cstddef>

namespace drawing {

class MultiLeader;
struct TextColumns;
struct TextPiece;

/// Converts entities to the shapes, texts and block references that draw them.
class EntityReader
{
public:
    /// The parts in `source` and `linetypes` must outlive this object.
    EntityReader(const GeometrySource& source, const LinetypePatterns& linetypes);

    /// Adds entity `index` with its subentities (vertices, attributes) to `definition`. With
    /// `inBlock`, attribute definitions are left out, because each block reference brings its own
    /// attributes.
    void read(std::size_t index, bool inBlock, Definition& definition);

private:
    using Handler = void (EntityReader::*)();
    struct HandlerRow;
    static const HandlerRow kHandlers[];

    /// How the lines of a text are spaced and how they are placed relative to the text's position.
    struct Paragraph
    {
        double height = 1;
        double spacing = 1; ///< The line spacing in units of the normal one.
        /// 0, 1, 2: the text is to the right of the position, centred, to the left of it.
        int column = 0;
        int row = 0; ///< 0, 1, 2: the text is below the position, centred, above it.
        TextStyle style;
    };
    /// Where the pixels of an image are.
    struct ImageFrame
    {
        Vec3 corner, right, up; ///< `corner` is the lower left one; `right` and `up` are the sides.
        double width = 0, height = 0; ///< In pixels.
    };

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
    void mesh();
    void ray();
    void constructionLine();
    void multiLeader();
    void multiLine();
    void table();
    void tolerance();
    void shape();
    void wipeout();
    void underlay();
    void viewport();

    void attributes();
    Transform3 plane() const;
    bool addText(const QString& value, TextRun::Vertical vertical);
    void addLines(const QStringList& lines, const Transform3& place, const Paragraph& paragraph);
    void addColumns(const QStringList& lines, const TextColumns& columns, const Transform3& place,
        Paragraph paragraph);
    void addLine(const QString& line, const Transform3& place, const Paragraph& paragraph);
    void addStack(const TextPiece& piece, const Transform3& place, Paragraph paragraph);
    void addPiece(const QString& piece, const Transform3& place, const Paragraph& paragraph);
    void addTextFrame(const QStringList& lines, const Transform3& place, double unit, double height,
        const MultiLeader& leader);
    bool readsWipeoutFrames() const;
    std::vector<EntityStyle> multiLineStyles();
    void addArrow(const Path& path, double size);
    void addEndless(bool bothWays);
    void addFrame(const Vec3& corner, const Vec3& right, const Vec3& up);
    /// Draws a placeholder for something that cannot be shown: its file's name inside its frame.
    void addFileName(const Vec3& corner, const Vec3& right, const Vec3& up, int pointer);
    void addBlock(quint64 record, Definition::Reference reference);
    ImageFrame imageFrame() const;
    TextStyle textStyle() const;
    void load(std::size_t index);
    /// Adds a shape and returns it; null when nothing of the path was usable.
    Definition::Shape* addShape(
        Primitive::Shape shape, const Path& path, const Transform3& place = {});
    void addPolyline(const PolylinePicture& picture, const Transform3& place);
    void addReference(const QString& name, Definition::Reference reference);
    EntityStyle readStyle();
    void takeStyle(EntityStyle& style, const Tag& tag);
    static void takeColor(EntityStyle& style, qint64 index);
    static EntitySetting lineweightOf(qint64 stored);
    static EntitySetting transparencyOf(qint64 stored);
    EntitySetting linetypeOf(const Tag& name);
    const EntityStyle& style() const { return m_style; }

    const GeometrySource m_source;
    const LinetypePatterns& m_linetypes;
    TextStyles m_textStyles;
    bool m_showsWipeoutFrames = true;
    double m_textHeight = 1;   ///< For texts without a height of their own.
    QByteArray m_linetypeName; ///< The linetype name that was looked up last.
    EntitySetting m_linetype;  ///< The result of that look-up.
    EntityStyle m_style;
    EntityTags m_tags;
    std::size_t m_index = 0;
    bool m_inBlock = false;
    LayerId m_owner = LayerId::None;
    Definition* m_definition = nullptr;
};

} // namespace drawing
