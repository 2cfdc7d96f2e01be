#pragma once

#include "crew.h"
#include "scene.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace drawing {
class Drawing;
} // namespace drawing

/// Flattens the drawing part by part on separate threads and publishes the parts as they become
/// ready. After an edit, only the affected parts are built anew, and their old versions remain
/// visible until then. Before the drawing changes the threads stop; unfinished parts are started
/// again when control returns to the event loop. Small drawings are flattened immediately.
class SceneBuilder : public QObject
{
    Q_OBJECT

public:
    explicit SceneBuilder(QObject* parent = nullptr);
    ~SceneBuilder() override;

    /// Starts with another drawing; null for none.
    void setDrawing(const drawing::Drawing* drawing);
    /// Starts from the beginning because another space of the drawing is to be shown.
    void restart();
    bool isBuilding() const { return !m_isWhole; }

signals:
    void sceneChanged(const Scene& scene); ///< Some of it was added or replaced.
    /// Everything has been built. `isTruncated` tells that there is more than can be shown.
    void finished(bool isTruncated);

protected:
    bool event(QEvent* event) override;

private:
    struct Build;

    void rebuild(const std::vector<int>& entities);
    void stop();
    void resume();
    bool buildAtOnce();
    void work(Build& build);
    void collect();
    void finish();
    void publishBeginning();
    void publish();

    const drawing::Drawing* m_drawing = nullptr;
    std::vector<drawing::EntityRange> m_ranges; ///< The ranges of the parts.
    std::vector<drawing::GeometryPart> m_parts; ///< Null for parts that have not been built.
    std::vector<std::size_t> m_stale; ///< The parts that must be built, in ascending order.
    bool m_isWhole = true;            ///< Everything has been built and published.
    std::shared_ptr<Build> m_build;   ///< The build under way.
    QTimer m_resume;
    QTimer m_publish;
    Crew m_crew;
};
