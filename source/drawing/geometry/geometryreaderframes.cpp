#include "geometryreader.h"

#include "entities/entitytable.h"
#include "entities/viewports.h"
#include "file/owntags.h"

#include <QRegularExpression>

namespace drawing {

EntityReader::ImageFrame EntityReader::imageFrame() const
{
    const double width = m_tags.number(13);
    const double height = m_tags.number(23);
    return {m_tags.point(10), m_tags.point(11) * width, m_tags.point(12) * height, width, height};
}

/// Draws the outline of an image. Its pixels are not shown.
void EntityReader::image()
{
    const ImageFrame frame = imageFrame();
    addFrame(frame.corner, frame.right, frame.up);
    addFileName(frame.corner, frame.right, frame.up, 340);
}

void EntityReader::addFrame(const Vec3& corner, const Vec3& right, const Vec3& up)
{
    addShape(Primitive::Shape::Lines,
        {corner, corner + right, corner + right + up, corner + up, corner});
}

void EntityReader::addFileName(const Vec3& corner, const Vec3& right, const Vec3& up, int pointer)
{
    constexpr int kFileName = 1;
    constexpr double kShare = 0.05; ///< Of the frame's height.
    const Tag* definition = m_tags.find(pointer);
    const ObjectPlace* object =
        definition ? m_source.file.objects().find(definition->handle()) : nullptr;
    if (!object)
        return;
    const QString path =
        m_source.file.decoded(findOwn(m_source.file.tags(object->range), kFileName).trimmed());
    const QString name = path.section(QRegularExpression(QStringLiteral("[/\\\\]")), -1);
    const double height = up.length() * kShare;
    const Transform3 place(
        right.normalized(), up.normalized(), {0, 0, 1}, corner + (right + up) * (kShare / 2));
    if (height > 0)
        addLines({name}, place, {height, 1, 0, 2, {}});
}

bool EntityReader::readsWipeoutFrames() const
{
    constexpr int kShown = 70;
    const Objects& objects = m_source.file.objects();
    const ObjectPlace* root = objects.root();
    const quint64 variables = root ? objects.entry(root->handle, "ACAD_WIPEOUT_VARS") : 0;
    const ObjectPlace* object = objects.find(variables);
    return !object || findOwn(m_source.file.tags(object->range), kShown).integer() != 0;
}

/// Covers what is below a wipeout; its edge is drawn when the drawing says so.
void EntityReader::wipeout()
{
    enum Boundary { Rectangle = 1 };
    constexpr qint64 kUsesBoundary = 4;
    const ImageFrame frame = imageFrame();
    Path pixels;
    for (const Tag& tag : m_tags) {
        if (tag.code == 14)
            pixels.push_back({tag.real(), 0, 0});
        else if (tag.code == 24 && !pixels.empty())
            pixels.back().y = tag.real();
    }
    if (m_tags.integer(71) == Rectangle && pixels.size() == 2)
        pixels = {
            pixels[0], {pixels[1].x, pixels[0].y, 0}, pixels[1], {pixels[0].x, pixels[1].y, 0}};
    if (pixels.size() < 3 || !(m_tags.integer(70, kUsesBoundary) & kUsesBoundary))
        pixels = {{-0.5, -0.5, 0}, {frame.width - 0.5, -0.5, 0},
            {frame.width - 0.5, frame.height - 0.5, 0}, {-0.5, frame.height - 0.5, 0}};
    Path outline;
    for (const Vec3& pixel : pixels)
        outline.push_back(frame.corner + m_tags.point(11) * (pixel.x + 0.5) +
                          m_tags.point(12) * (frame.height - pixel.y - 0.5));
    outline.push_back(outline.front());
    addShape(Primitive::Shape::Mask, outline);
    if (m_showsWipeoutFrames)
        addShape(Primitive::Shape::Lines, outline);
}

/// Draws the outline of the visible part of an underlay and its file name, but not the page.
void EntityReader::underlay()
{
    Path outline;
    for (const Tag& tag : m_tags) {
        if (tag.code == 11)
            outline.push_back({tag.real(), 0, 0});
        else if (tag.code == 21 && !outline.empty())
            outline.back().y = tag.real();
    }
    if (outline.size() == 2)
        outline = {outline[0], {outline[1].x, outline[0].y, 0}, outline[1],
            {outline[0].x, outline[1].y, 0}};
    const Transform3 place =
        plane() * Transform3::turnedAt(m_tags.point(10), m_tags.number(50)) *
        Transform3::scaling({m_tags.number(41, 1), m_tags.number(42, 1), m_tags.number(43, 1)});
    if (!outline.empty())
        outline.push_back(outline.front());
    addShape(Primitive::Shape::Lines, outline, place);
    const bool hasSides = outline.size() >= 4;
    const Vec3 corner = place.map(hasSides ? outline[0] : Vec3());
    const Vec3 right = hasSides ? place.map(outline[1]) - corner : Vec3{m_textHeight, 0, 0};
    const Vec3 up = hasSides ? place.map(outline[3]) - corner : Vec3{0, m_textHeight * 20, 0};
    addFileName(corner, right, up, 340);
}

/// Draws the edge of a viewport. When the viewport has another outline, that entity draws the edge.
void EntityReader::viewport()
{
    constexpr qint64 kHasOutline = 0x10000;
    if (isSheetsOwn(m_source.file.tags(m_source.entities[m_index].range())) ||
        m_tags.integer(90) & kHasOutline)
        return;
    const Vec3 right{m_tags.number(40), 0, 0};
    const Vec3 up{0, m_tags.number(41), 0};
    addFrame(m_tags.point(10) - (right + up) * 0.5, right, up);
}

/// Draws a square in place of a shape, because shapes are stored in files of another format.
void EntityReader::shape()
{
    const double size = m_tags.number(40, 1);
    const Transform3 place = plane() * Transform3::turnedAt(m_tags.point(10), m_tags.number(50)) *
                             Transform3::scaling({size * m_tags.number(41, 1), size, 1});
    addShape(
        Primitive::Shape::Lines, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 0}}, place);
}

} // namespace drawing
