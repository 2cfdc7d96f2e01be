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

/// Flattens the drawing part by part on threads of its own, and hands out what there is as it
/// comes. An edit has those parts built anew that it touched; until they are, their old ones are
/// shown. Before the drawing changes the threads stop; what they had not finished starts again once
/// control is back in the event loop. Small drawings are flattened at once.
class SceneBuilder : public QObject
{
    Q_OBJECT

public:
    explicit SceneBuilder(QObject* parent = nullptr);
    ~SceneBuilder() override;

    /// Begins with another drawing; null stands for none.
    void setDrawing(const drawing::Drawing* drawing);
    /// Begins from nothing, as another space of the drawing is to be shown.
    void restart();
    bool isBuilding() const { return !m_isWhole; }

signals:
    void sceneChanged(const Scene& scene); ///< More of it is there, or it is there anew.
    /// All is there. `isTruncated`: there is more than can be shown.
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
    void publish();

    const drawing::Drawing* m_drawing = nullptr;
    std::vector<drawing::EntityRange> m_ranges; ///< Of the parts.
    std::vector<drawing::GeometryPart> m_parts; ///< Null where there is none yet.
    std::vector<std::size_t> m_stale;           ///< Parts to be built, ascending.
    bool m_isWhole = true;                      ///< And handed out.
    std::shared_ptr<Build> m_build;             ///< Under way.
    QTimer m_resume;
    QTimer m_publish;
    Crew m_crew;
};
