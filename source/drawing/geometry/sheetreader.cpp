#include "sheetreader.h"

#include "file/owntags.h"
#include "layers/layouts.h"
#include "layers/viewportlayers.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

constexpr double kMillimetresPerInch = 25.4;

/// The paper according to the plot settings, in millimetres.
struct PaperSettings
{
    double left = 0, bottom = 0, right = 0, top = 0; ///< The margins of the printed paper.
    double width = 0, height = 0;
    /// The origin of the plot, relative to the corner of the margins.
    double originX = 0, originY = 0;
    double paperUnits = 1, drawingUnits = 1; ///< The two sides of the plot scale.
    qint64 unit = 1;                         ///< 0 for inch, 1 for millimetre.
    qint64 turns = 0;                        ///< Counterclockwise quarter turns.

    void take(const Tag& tag);
    void turn();
};

void PaperSettings::take(const Tag& tag)
{
    struct Row
    {
        int code;
        double PaperSettings::*member;
    };
    constexpr Row kRows[] = {{40, &PaperSettings::left}, {41, &PaperSettings::bottom},
        {42, &PaperSettings::right}, {43, &PaperSettings::top}, {44, &PaperSettings::width},
        {45, &PaperSettings::height}, {46, &PaperSettings::originX}, {47, &PaperSettings::originY},
        {142, &PaperSettings::paperUnits}, {143, &PaperSettings::drawingUnits}};
    for (const Row& row : kRows) {
        if (row.code == tag.code && std::isfinite(tag.real()))
            this->*row.member = tag.real();
    }
    if (tag.code == 72)
        unit = tag.integer();
    else if (tag.code == 73)
        turns = tag.integer() & 3;
}

/// Turns the paper by a quarter, so that its top becomes its left side.
void PaperSettings::turn()
{
    std::swap(width, height);
    const double wasLeft = left;
    left = top;
    top = right;
    right = bottom;
    bottom = wasLeft;
}

/// The contents of a VIEWPORT by their meaning.
struct ViewportTags
{
    Vec3 center, target, direction{0, 0, 1};
    double width = 0, height = 0, viewX = 0, viewY = 0, viewHeight = 0, twist = 0;
    qint64 flags = 0, status = 1;
    bool hasFlags = false;
    quint64 outline = 0;

    void take(const Tag& tag);
    void takeOldView(const std::vector<Tag>& xdata);
};

void ViewportTags::take(const Tag& tag)
{
    switch (tag.code) {
    case 10:
        center.x = tag.real();
        return;
    case 20:
        center.y = tag.real();
        return;
    case 12:
        viewX = tag.real();
        return;
    case 22:
        viewY = tag.real();
        return;
    case 16:
        direction.x = tag.real();
        return;
    case 26:
        direction.y = tag.real();
        return;
    case 36:
        direction.z = tag.real();
        return;
    case 17:
        target.x = tag.real();
        return;
    case 27:
        target.y = tag.real();
        return;
    case 37:
        target.z = tag.real();
        return;
    case 40:
        width = tag.real();
        return;
    case 41:
        height = tag.real();
        return;
    case 45:
        viewHeight = tag.real();
        return;
    case 51:
        twist = tag.real();
        return;
    case 68:
        status = tag.integer();
        return;
    case 90:
        flags = tag.integer();
        hasFlags = true;
        return;
    case 340:
        outline = tag.handle();
        return;
    default:
        return;
    }
}

/// Reads the view from application data, where old files keep it. The values are identified by
/// their order alone: target, direction, twist, height and centre of the view.
void ViewportTags::takeOldView(const std::vector<Tag>& xdata)
{
    std::vector<double> numbers;
    for (const Tag& tag : xdata) {
        if (tag.code >= 1010 && tag.code < 1060)
            numbers.push_back(tag.real());
    }
    constexpr std::size_t kWanted = 10;
    if (numbers.size() < kWanted)
        return;
    target = {numbers[0], numbers[1], numbers[2]};
    direction = {numbers[3], numbers[4], numbers[5]};
    twist = numbers[6];
    viewHeight = numbers[7];
    viewX = numbers[8];
    viewY = numbers[9];
}

/// As edited so far.
ViewportTags readTags(const DrawingFile& file, const Entity& place)
{
    ViewportTags viewport;
    std::vector<Tag> xdata;
    const QByteArray bytes = file.journal().current(place.range());
    OwnTags tags(TagReader(bytes, file.spelling()));
    Tag tag;
    while (tags.nextOfAll(tag)) {
        if (tags.part() == TagPart::Own)
            viewport.take(tag);
        else if (tags.part() == TagPart::Xdata && tags.place().application() == "ACAD")
            xdata.push_back(tag);
    }
    if (viewport.viewHeight == 0)
        viewport.takeOldView(xdata);
    return viewport;
}

/// The transformation that looks along the view direction at the target, twists and scales the
/// view, and moves it to the viewport's place on the sheet.
Transform3 toSheet(const ViewportTags& viewport, double scale)
{
    const Vec3 z = viewport.direction.normalized();
    const bool isPlan = z.x == 0 && z.y == 0;
    const Vec3 x = isPlan ? Vec3{1, 0, 0} : Vec3::cross({0, 0, 1}, z).normalized();
    const Vec3 y = Vec3::cross(z, x);
    // The rows of the rotation matrix are the axes of the view.
    const Transform3 look({x.x, y.x, 0}, {x.y, y.y, 0}, {x.z, y.z, 0}, {});
    const Transform3 place = Transform3::translation(viewport.center) *
                             Transform3::scaling({scale, scale, 1}) *
                             Transform3::translation({-viewport.viewX, -viewport.viewY, 0}) *
                             Transform3::rotation(viewport.twist);
    return place * look * Transform3::translation(viewport.target * -1);
}

} // namespace

SheetReader::SheetReader(const GeometrySource& source)
    : m_source(source),
      m_reader(source, m_linetypes)
{
}

Sheet SheetReader::read()
{
    Sheet sheet;
    readPaper(sheet);
    const int current = m_source.layouts.currentViewport(m_source.entities);
    const auto overridden = m_source.overrides.all();
    const Layout& layout = m_source.layouts.shown();
    for (const int entity : layout.viewports) {
        const Entity& place = m_source.entities[static_cast<std::size_t>(entity)];
        if (place.removed)
            continue;
        SheetViewport viewport = readViewport(entity);
        viewport.isCurrent = entity == current;
        viewport.frozen = m_source.viewports.frozenIn(place);
        const auto found = overridden.find(m_source.viewports.handleOf(place));
        if (found != overridden.end())
            viewport.overridden = found->second;
        sheet.viewports.push_back(std::move(viewport));
    }
    return sheet;
}

void SheetReader::readPaper(Sheet& sheet) const
{
    constexpr int kFlags = 70;
    constexpr qint64 kPaperLinetypes = 1;
    PaperSettings settings;
    sheet.hasPaperLinetypes = readPictureSwitches(m_source.file.headerTags()).paperSpaceLinetypes;
    const ByteRange record = m_source.layouts.shown().record;
    if (record.isNull())
        return;
    OwnTags tags(m_source.file.tags(record));
    Tag tag;
    while (tags.next(tag)) {
        if (tags.place().subclass() == "AcDbPlotSettings")
            settings.take(tag);
        else if (tags.place().subclass() == "AcDbLayout" && tag.code == kFlags)
            sheet.hasPaperLinetypes = tag.integer() & kPaperLinetypes;
    }
    for (qint64 i = 0; i < settings.turns; ++i)
        settings.turn();
    double unit = settings.unit == 0 ? 1 / kMillimetresPerInch : 1;
    if (settings.paperUnits > 0 && settings.drawingUnits > 0)
        unit *= settings.drawingUnits / settings.paperUnits;
    sheet.unitsPerMillimetre = unit;
    if (!(settings.width > 0 && settings.height > 0))
        return;
    const QPointF corner =
        -QPointF(settings.left + settings.originX, settings.bottom + settings.originY) * unit;
    const QPointF size = QPointF(settings.width, settings.height) * unit;
    sheet.paper.add(corner);
    sheet.paper.add(corner + size);
    sheet.printable.add(corner + QPointF(settings.left, settings.bottom) * unit);
    sheet.printable.add(corner + size - QPointF(settings.right, settings.top) * unit);
}

SheetViewport SheetReader::readViewport(int entity)
{
    enum Flag { Locked = 0x4000, ClippedByOutline = 0x10000, Off = 0x20000 };
    const Entity& place = m_source.entities[static_cast<std::size_t>(entity)];
    const ViewportTags tags = readTags(m_source.file, place);
    SheetViewport viewport;
    viewport.entity = entity;
    viewport.center = {tags.center.x, tags.center.y};
    viewport.view = {{tags.viewX, tags.viewY}, tags.viewHeight};
    viewport.scale = tags.viewHeight > 0 ? tags.height / tags.viewHeight : 0;
    viewport.toSheet = toSheet(tags, viewport.scale);
    viewport.isLocked = (tags.flags & Locked) != 0 || !hasOwnView(m_source.file, place);
    // In old files the stacking order of the viewports tells whether they are on.
    const bool isOff = tags.hasFlags ? (tags.flags & Off) != 0 : tags.status == 0;
    viewport.isOn = !isOff && viewport.scale > 0 && viewport.toSheet.isFinite();
    if (tags.flags & ClippedByOutline)
        viewport.outline = outlineOf(tags.outline, place);
    if (viewport.outline.size() < 3) {
        const QPointF& center = viewport.center;
        const QPointF half(tags.width / 2, tags.height / 2);
        const QPointF other(half.x(), -half.y());
        viewport.outline = {center - half, center + other, center + half, center - other};
    }
    return viewport;
}

/// The outline that another entity of the same sheet draws.
std::vector<QPointF> SheetReader::outlineOf(quint64 handle, const Entity& viewport)
{
    const auto& entities = m_source.entities.all();
    Definition definition;
    for (std::size_t i = 0; i < entities.size() && handle != 0; ++i) {
        const Entity& entity = entities[i];
        const bool isBeside = entity.block == viewport.block &&
                              entity.paperSpace == viewport.paperSpace && !entity.subEntity;
        if (!isBeside || entity.removed || ownHandle(m_source.file.tags(entity.range())) != handle)
            continue;
        m_reader.read(i, false, definition);
        break;
    }
    std::vector<QPointF> outline;
    for (const Vec3& vertex : definition.vertices) {
        if (!std::isnan(vertex.x))
            outline.emplace_back(vertex.x, vertex.y);
    }
    return outline;
}

} // namespace drawing
