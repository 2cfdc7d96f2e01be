#include "geometryreader.h"

#include "entities/entitytable.h"
#include "geometrytext.h"
#include "geometrytolerance.h"
#include "textcolumns.h"

#include <algorithm>
#include <cmath>

namespace drawing {

void EntityReader::text()
{
    const Tag* value = m_tags.find(1);
    addText(value ? m_source.file.decoded(value->text()) : QString(),
        static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(73), 0, 3)));
}

void EntityReader::attribute()
{
    constexpr int kInvisible = 1;
    const Tag* value = m_tags.find(1);
    if (value && !(m_tags.integer(70) & kInvisible))
        addText(m_source.file.decoded(value->text()),
            static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(74), 0, 3)));
}

void EntityReader::attributeDefinition()
{
    constexpr int kInvisible = 1;
    constexpr int kConstant = 2;
    const qint64 flags = m_tags.integer(70);
    if (flags & kInvisible || (m_inBlock && !(flags & kConstant)))
        return;
    const Tag* value = m_tags.find(flags & kConstant ? 1 : 2);
    if (value)
        addText(m_source.file.decoded(value->text()),
            static_cast<TextRun::Vertical>(std::clamp<qint64>(m_tags.integer(74), 0, 3)));
}

/// Adds a line of text with the properties of a TEXT.
bool EntityReader::addText(const QString& value, TextRun::Vertical vertical)
{
    enum Justification { Left, Center, Right, Aligned, Middle, Fit };
    enum Mirror { Backward = 2, UpsideDown = 4 };
    const qint64 justification = m_tags.integer(72);
    const bool atFirst = (justification == Left && vertical == TextRun::Vertical::Baseline) ||
                         justification == Aligned || justification == Fit || !m_tags.find(11);

    Definition::Text text;
    text.style = style();
    text.run.text = plainText(value);
    text.run.vertical = justification == Middle ? TextRun::Vertical::Middle : vertical;
    if (justification == Center || justification == Middle)
        text.run.horizontal = TextRun::Horizontal::Center;
    else if (justification == Right)
        text.run.horizontal = TextRun::Horizontal::Right;

    double rotation = m_tags.number(50);
    double height = m_tags.number(40, 1);
    const Vec3 span = m_tags.point(11) - m_tags.point(10);
    const double length = std::hypot(span.x, span.y);
    if ((justification == Aligned || justification == Fit) && m_tags.find(11) && length > 0) {
        rotation = std::atan2(span.y, span.x) / kDegree;
        if (justification == Aligned)
            height = length / std::max(textWidth(text.run.text), 1.0);
        text.run.fitWidth = height > 0 ? length / height : 0;
    }
    const qint64 mirror = m_tags.integer(71);
    const double stretch = text.run.fitWidth > 0 ? 1 : m_tags.number(41, 1);
    const double slant = std::tan(m_tags.number(51) * kDegree);
    const Vec3 right{mirror & Backward ? -height : height, 0, 0};
    const Vec3 up{slant * height, mirror & UpsideDown ? -height : height, 0};

    const Transform3 place =
        plane() * Transform3::turnedAt(m_tags.point(atFirst ? 10 : 11), rotation);
    text.origin = place.map({});
    text.right = place.mapDirection(right * stretch);
    text.up = place.mapDirection(up);
    const bool usable = text.origin.isFinite() && text.right.isFinite() && text.up.isFinite();
    if (!usable || height <= 0 || text.run.text.trimmed().isEmpty())
        return false;
    m_definition->texts.push_back(std::move(text));
    return true;
}

void EntityReader::mtext()
{
    std::string_view chunk;
    QString value;
    for (const Tag& tag : m_tags) {
        if (tag.code == 3)
            value += m_source.file.decoded(tag.text());
        else if (tag.code == 1)
            chunk = tag.text();
    }
    value += m_source.file.decoded(chunk);

    const double height = m_tags.number(40, 1);
    if (!(height > 0) || !std::isfinite(height))
        return;
    // There may be both a direction and an angle; the later one counts.
    const Tag* direction = m_tags.find(11);
    const Tag* angle = m_tags.find(50);
    Transform3 place = plane() * Transform3::rotation(m_tags.number(50));
    if (direction && (!angle || angle->first < direction->first)) {
        const Vec3 x = m_tags.point(11).normalized();
        const Vec3 z = m_tags.extrusion().normalized();
        place = Transform3(x, Vec3::cross(z, x), z, {});
    }
    place = Transform3::translation(m_tags.point(10)) * place;
    const auto attachment = static_cast<int>(std::clamp<qint64>(m_tags.integer(71, 1), 1, 9)) - 1;
    const TextStyle letters = textStyle();
    const TextColumns columns =
        readTextColumns(m_source.file.tags(m_source.entities[m_index].range()));
    const double width = columns.count > 1 ? columns.width : m_tags.number(41);
    const QStringList lines = plainLines(value, width / (height * letters.widthFactor));
    const Paragraph paragraph{
        height, m_tags.number(44, 1), attachment % 3, attachment / 3, letters};
    if (columns.count > 1)
        addColumns(lines, columns, place, paragraph);
    else
        addLines(lines, place, paragraph);
}

/// All hang from where the longest one begins.
void EntityReader::addColumns(const QStringList& lines, const TextColumns& columns,
    const Transform3& place, Paragraph paragraph)
{
    const double spacing = paragraph.height * kLineDistance * paragraph.spacing;
    const std::vector<QStringList> parts = columns.split(lines, spacing);
    int longest = 0;
    for (const QStringList& part : parts)
        longest = std::max(longest, part.size());
    const double top = (spacing * (longest - 1) + paragraph.height) * paragraph.row / 2;
    paragraph.row = 0;
    const double shift =
        (columns.width - columns.totalWidth()) * paragraph.column / 2; // Of the first one's place.
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double left = columns.leftOf(static_cast<int>(i)) + shift;
        addLines(parts[i], place * Transform3::translation({left, top, 0}), paragraph);
    }
}

void EntityReader::addLines(
    const QStringList& lines, const Transform3& place, const Paragraph& paragraph)
{
    const double spacing = paragraph.height * kLineDistance * paragraph.spacing;
    const double total = spacing * (lines.size() - 1) + paragraph.height;
    if (!place.isFinite() || !std::isfinite(total))
        return;
    double baseline = total * paragraph.row / 2 - paragraph.height;
    for (const QString& line : lines) {
        addLine(line, place * Transform3::translation({0, baseline, 0}), paragraph);
        baseline -= spacing;
    }
}

/// Adds a line of text whose baseline goes through the position.
void EntityReader::addLine(const QString& line, const Transform3& place, const Paragraph& paragraph)
{
    const std::vector<TextPiece> pieces = piecesOf(line);
    if (pieces.size() == 1 && !pieces.front().isStack) {
        addPiece(line, place, paragraph);
        return;
    }
    Paragraph part = paragraph;
    part.column = 0;
    const double unit = paragraph.height * paragraph.style.widthFactor;
    double left = -textWidth(line) * unit * paragraph.column / 2;
    for (const TextPiece& piece : pieces) {
        const Transform3 start = place * Transform3::translation({left, 0, 0});
        if (piece.isStack)
            addStack(piece, start, part);
        else
            addPiece(piece.text, start, part);
        left += piece.width * unit;
    }
}

void EntityReader::addStack(const TextPiece& piece, const Transform3& place, Paragraph paragraph)
{
    // The lower text stands below the baseline; the upper one is raised accordingly.
    constexpr double kBelow = -0.2;
    constexpr double kAbove = 0.65;
    constexpr double kBar = (kBelow + stack::kHeight + kAbove) / 2;
    const double height = paragraph.height;
    paragraph.height *= stack::kHeight;
    addPiece(piece.text, place * Transform3::translation({0, kAbove * height, 0}), paragraph);
    addPiece(piece.below, place * Transform3::translation({0, kBelow * height, 0}), paragraph);
    const double width = piece.width * height * paragraph.style.widthFactor;
    if (piece.hasBar)
        addShape(Primitive::Shape::Lines,
            {place.map({0, kBar * height, 0}), place.map({width, kBar * height, 0})});
}

void EntityReader::addPiece(
    const QString& piece, const Transform3& place, const Paragraph& paragraph)
{
    if (piece.trimmed().isEmpty())
        return;
    const double slant = std::tan(paragraph.style.oblique * kDegree);
    Definition::Text text;
    text.style = style();
    text.run.text = piece;
    text.run.horizontal = static_cast<TextRun::Horizontal>(paragraph.column);
    text.origin = place.map({});
    text.right = place.mapDirection({paragraph.height * paragraph.style.widthFactor, 0, 0});
    text.up = place.mapDirection({paragraph.height * slant, paragraph.height, 0});
    m_definition->texts.push_back(std::move(text));
}

/// Draws a tolerance frame with cells twice as high as the text. It begins at the middle of the
/// left side of the first row.
void EntityReader::tolerance()
{
    const Tag* value = m_tags.find(1);
    if (!value)
        return;
    const double height = m_textHeight;
    const Vec3 x = m_tags.find(11) ? m_tags.point(11).normalized() : Vec3{1, 0, 0};
    const Vec3 z = m_tags.extrusion().normalized();
    const Transform3 place(x, Vec3::cross(z, x), z, m_tags.point(10));
    double bottom = -height;
    for (const QStringList& row : toleranceCells(m_source.file.decoded(value->text()))) {
        double left = 0;
        for (const QString& cell : row) {
            const double width = (textWidth(plainText(cell)) + 1) * height;
            addFrame(place.map({left, bottom, 0}), place.mapDirection({width, 0, 0}),
                place.mapDirection({0, 2 * height, 0}));
            addLines({plainText(cell)},
                place * Transform3::translation({left + width / 2, bottom + height, 0}),
                {height, 1, 1, 1, {}});
            left += width;
        }
        bottom -= 2 * height;
    }
}

TextStyle EntityReader::textStyle() const
{
    constexpr int kStyle = 7;
    const Tag* name = m_tags.find(kStyle);
    return name ? m_textStyles.find(m_source.file.decoded(name->trimmed())) : TextStyle();
}

} // namespace drawing
