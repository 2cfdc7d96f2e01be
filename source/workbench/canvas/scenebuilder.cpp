#include "scenebuilder.h"

#include "drawing.h"
#include "geometry/geometrybuilder.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <numeric>

using drawing::EntityRange;
using drawing::Geometry;
using drawing::GeometryAmount;
using drawing::GeometryBuilder;
using drawing::GeometryPart;
using drawing::GeometryRoom;

namespace {

/// Large enough that block contents are read only a few times, and small enough that an edit of one
/// entity is visible within a frame or two.
constexpr std::size_t kPartLength = 32768;
/// Drawings up to this size are flattened immediately.
constexpr std::size_t kEntitiesAtOnce = 5000;
constexpr GeometryAmount kRoomAtOnce{100000, 10000, 2000};
/// The time until the first parts are published, and the factor by which it grows each time, because
/// painting an incomplete scene takes time from building the rest.
constexpr int kPublishMilliseconds = 60;
constexpr int kPublishGrowth = 4;
/// The event that a thread posts when it has finished a part.
constexpr auto kPartBuilt = static_cast<QEvent::Type>(QEvent::User + 1);

GeometryPart partOf(Geometry geometry)
{
    geometry.index = drawing::GeometryIndex(geometry);
    return std::make_shared<const Geometry>(std::move(geometry));
}

GeometryAmount roomBeside(const std::vector<GeometryPart>& parts)
{
    GeometryAmount room = GeometryRoom::kMost;
    for (const GeometryPart& part : parts) {
        if (!part)
            continue;
        room.vertices -= part->amount.vertices;
        room.pieces -= part->amount.pieces;
        room.instances -= part->amount.instances;
    }
    return room;
}

} // namespace

/// Data shared by the threads of one build. They read the drawing until the build is cancelled.
struct SceneBuilder::Build
{
    Build(const drawing::GeometrySource& drawn, const GeometryAmount& amount)
        : source(drawn),
          room(amount)
    {
    }

    const drawing::GeometrySource source;
    GeometryRoom room;
    drawing::Progress progress;
    std::vector<std::pair<std::size_t, EntityRange>> parts; ///< The parts to build.
    std::atomic<std::size_t> next{0};
    std::mutex mutex;
    std::vector<std::pair<std::size_t, GeometryPart>> done; ///< Protected by the mutex.
};

SceneBuilder::SceneBuilder(QObject* parent) : QObject(parent)
{
    m_resume.setSingleShot(true);
    connect(&m_resume, &QTimer::timeout, this, &SceneBuilder::resume);
    m_publish.setSingleShot(true);
    connect(&m_publish, &QTimer::timeout, this, &SceneBuilder::publishBeginning);
}

SceneBuilder::~SceneBuilder()
{
    stop();
}

void SceneBuilder::setDrawing(const drawing::Drawing* drawing)
{
    if (m_drawing)
        m_drawing->disconnect(this);
    stop();
    m_drawing = drawing;
    m_ranges.clear();
    if (drawing) {
        m_ranges = drawing::geometryRanges(drawing->entities(), kPartLength);
        connect(drawing, &drawing::Drawing::aboutToChange, this, &SceneBuilder::stop);
        connect(drawing, &drawing::Drawing::entitiesChanged, this, &SceneBuilder::rebuild);
        connect(drawing, &QObject::destroyed, this, [this] { setDrawing(nullptr); });
    }
    restart();
}

void SceneBuilder::restart()
{
    stop();
    m_isWhole = m_drawing == nullptr;
    m_parts.assign(m_ranges.size(), nullptr);
    m_stale.resize(m_ranges.size());
    std::iota(m_stale.begin(), m_stale.end(), std::size_t(0));
    publish();
    resume();
}

void SceneBuilder::rebuild(const std::vector<int>& entities)
{
    stop();
    const auto partOf = [this](int entity) {
        const auto behind =
            std::upper_bound(m_ranges.begin(), m_ranges.end(), static_cast<std::size_t>(entity),
                [](std::size_t index, const EntityRange& range) { return index < range.first; });
        return static_cast<std::size_t>(behind - m_ranges.begin()) - 1;
    };
    const auto isInDefinition = [this](int entity) {
        const int block = m_drawing->entities()[static_cast<std::size_t>(entity)].block;
        return block >= 0 && !m_drawing->blocks()[static_cast<std::size_t>(block)].layout;
    };
    // A change inside a block definition may be visible in any part.
    std::vector<bool> isStale(
        m_ranges.size(), std::any_of(entities.begin(), entities.end(), isInDefinition));
    for (const std::size_t part : m_stale)
        isStale[part] = true;
    for (const int entity : entities)
        isStale[partOf(entity)] = true;
    m_isWhole = false;
    m_stale.clear();
    for (std::size_t part = 0; part < isStale.size(); ++part) {
        if (isStale[part])
            m_stale.push_back(part);
    }
    resume();
}

/// Cancels the build and waits until no thread reads the drawing any more.
void SceneBuilder::stop()
{
    if (!m_build)
        return;
    m_build->progress.cancelled = true;
    m_crew.waitForDone();
    collect();
    m_build.reset();
    m_resume.start();
}

void SceneBuilder::resume()
{
    m_resume.stop();
    if (m_build || !m_drawing)
        return;
    if (m_stale.empty() || buildAtOnce()) {
        finish();
        return;
    }
    std::vector<GeometryPart> others = m_parts;
    for (const std::size_t part : m_stale)
        others[part] = nullptr;
    m_publish.setInterval(kPublishMilliseconds);
    m_build = std::make_shared<Build>(m_drawing->geometrySource(), roomBeside(others));
    for (const std::size_t part : m_stale)
        m_build->parts.emplace_back(part, m_ranges[part]);
    const int threads = std::min(Crew::size(), static_cast<int>(m_stale.size()));
    for (int i = 0; i < threads; ++i)
        m_crew.start([this, build = m_build] { work(*build); });
}

/// Runs on a thread of the pool and builds part after part until none is left.
void SceneBuilder::work(Build& build)
{
    GeometryBuilder builder(build.source, build.room, &build.progress);
    for (std::size_t i = build.next++; i < build.parts.size(); i = build.next++) {
        const auto& [part, range] = build.parts[i];
        auto geometry = builder.build(range);
        if (!geometry)
            return;
        GeometryPart done = partOf(std::move(*geometry));
        {
            const std::lock_guard lock(build.mutex);
            build.done.emplace_back(part, std::move(done));
        }
        QCoreApplication::postEvent(this, new QEvent(kPartBuilt));
    }
}

bool SceneBuilder::event(QEvent* event)
{
    if (event->type() != kPartBuilt)
        return QObject::event(event);
    collect();
    return true;
}

/// Flattens a small drawing. Returns false when the drawing turns out to be large.
bool SceneBuilder::buildAtOnce()
{
    if (m_drawing->entities().size() > kEntitiesAtOnce)
        return false;
    GeometryRoom room(kRoomAtOnce);
    GeometryBuilder builder(m_drawing->geometrySource(), room, nullptr);
    std::vector<GeometryPart> parts;
    for (const EntityRange& range : m_ranges) {
        auto geometry = builder.build(range);
        if (!geometry || geometry->truncated)
            return false;
        parts.push_back(partOf(std::move(*geometry)));
    }
    m_parts = std::move(parts);
    m_stale.clear();
    return true;
}

/// Takes over the parts that the threads have finished.
void SceneBuilder::collect()
{
    if (!m_build)
        return;
    std::vector<std::pair<std::size_t, GeometryPart>> done;
    {
        const std::lock_guard lock(m_build->mutex);
        done.swap(m_build->done);
    }
    for (auto& [part, geometry] : done) {
        m_parts[part] = std::move(geometry);
        m_stale.erase(std::lower_bound(m_stale.begin(), m_stale.end(), part));
    }
    if (!m_publish.isActive() && !done.empty())
        m_publish.start();
    if (!m_stale.empty() || m_build->progress.cancelled)
        return;
    m_crew.waitForDone(); // A thread may still be finding out that no part is left.
    m_build.reset();
    finish();
}

void SceneBuilder::finish()
{
    m_isWhole = true;
    publish();
    emit finished(std::any_of(m_parts.begin(), m_parts.end(),
        [](const GeometryPart& part) { return part && part->truncated; }));
}

/// Publishes what there is, unless the whole will follow in less time than has passed.
void SceneBuilder::publishBeginning()
{
    if (m_build && m_stale.size() * 2 > m_build->parts.size())
        publish();
}

void SceneBuilder::publish()
{
    m_publish.stop();
    m_publish.setInterval(m_publish.interval() * kPublishGrowth);
    Scene scene;
    for (const GeometryPart& part : m_parts) {
        if (part && !part->groups.empty())
            scene.parts.push_back(part);
    }
    const auto isEndless = [](const GeometryPart& part) { return !part->endless.empty(); };
    if (std::any_of(scene.parts.begin(), scene.parts.end(), isEndless))
        scene.parts.push_back(partOf(drawing::endlessLines(scene.parts)));
    emit sceneChanged(scene);
}
