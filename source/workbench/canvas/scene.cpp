#include "scene.h"

#include <utility>

namespace {

constexpr std::size_t kVerticesOfText = 20;

} // namespace

ShownScene::ShownScene(Scene scene, const LookSource& source) : m_scene(std::move(scene))
{
    drawing::Box all;
    for (const drawing::GeometryPart& part : m_scene.parts) {
        m_looks.push_back(looksOf(*part, source));
        for (const drawing::GeometryGroup& group : part->groups)
            all.add(group.bounds);
    }
    forEachGroup([this](const Group& group) {
        m_extents.add(group.geometry.bounds);
        m_vertexCount +=
            group.geometry.vertices.size() + group.geometry.texts.size() * kVerticesOfText;
    });
    if (m_extents.isEmpty())
        m_extents = all;
}
