#include "scene.h"

#include "planemap.h"

#include <utility>

namespace {

constexpr std::size_t kVerticesOfText = 20;

} // namespace

ShownScene::ShownScene(Scene scene, const LookSource& source)
    : m_scene(std::move(scene)),
      m_background(source.isDark ? Qt::black : Qt::white)
{
    drawing::Box all;
    for (const drawing::GeometryPart& part : m_scene.parts) {
        m_looks.push_back(looksOf(*part, source));
        for (const drawing::GeometryGroup& group : part->groups)
            all.add(group.bounds);
    }
    forEachGroup([this](const Group& group) {
        if (group.look.counts && !m_scene.parts[group.part]->isEndless)
            m_extents.add(group.geometry.bounds);
        m_vertexCount +=
            group.geometry.vertices.size() + group.geometry.texts.size() * kVerticesOfText;
    });
    if (m_scene.sheet && !source.viewport)
        openWindows(source);
    if (m_extents.isEmpty())
        m_extents = all;
}

ShownScene ShownScene::with(const drawing::SheetViewport& viewport) const
{
    ShownScene moved = *this;
    for (Window& window : moved.m_windows) {
        if (window.viewport.entity == viewport.entity)
            window.viewport = viewport;
    }
    return moved;
}

void ShownScene::openWindows(const LookSource& source)
{
    m_extents.add(m_scene.sheet->paper);
    for (const drawing::SheetViewport& viewport : m_scene.sheet->viewports) {
        m_extents.add(boundsOf(viewport));
        if (!viewport.isOn)
            continue;
        LookSource through = source;
        through.viewport = &viewport;
        m_windows.push_back({viewport, std::make_shared<const ShownScene>(m_scene, through)});
        m_vertexCount += m_windows.back().scene->vertexCount();
    }
}
