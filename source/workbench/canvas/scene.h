#pragma once

#include "entityset.h"
#include "geometry/geometry.h"
#include "grouplook.h"

#include <algorithm>
#include <memory>
#include <vector>

/// The contents of a canvas: the flattened parts of a drawing in drawing order.
struct Scene
{
    Scene() = default;
    Scene(drawing::GeometryPart whole) ///< A drawing in one part; empty for null.
    {
        if (whole)
            parts.push_back(std::move(whole));
    }

    std::vector<drawing::GeometryPart> parts;
    std::shared_ptr<const drawing::Sheet> sheet; ///< Null while model space is shown.
};

/// A scene with the looks of its groups. Several threads share it, so it must not change after it
/// was made.
class ShownScene
{
public:
    ShownScene() = default;
    ShownScene(Scene scene, const LookSource& source);

    /// A visible group. Groups are stored in drawing order.
    struct Group
    {
        const drawing::GeometryGroup& geometry;
        const GroupLook& look;
        std::size_t part;
    };
    /// Calls `visit(const Group&)` for each visible group.
    template <class Visit>
    void forEachGroup(Visit visit) const
    {
        for (std::size_t part = 0; part < m_looks.size(); ++part)
            forEachGroupOf(part, visit);
    }
    template <class Visit>
    void forEachGroupOf(std::size_t part, Visit visit) const
    {
        const std::vector<drawing::GeometryGroup>& groups = m_scene.parts[part]->groups;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            if (m_looks[part][i].visible)
                visit(Group{groups[i], m_looks[part][i], part});
        }
    }

    /// Calls `visit(group, primitive)` and `visit(group, text)` for what is seen of these entities,
    /// given in ascending order.
    template <class Visit>
    void forEachPieceOf(const std::vector<int>& entities, Visit visit) const;

    /// The pieces of a group to look at: all of them, or those at the given places.
    struct Pieces
    {
        const drawing::GeometryIndex::Place* first = nullptr;
        const drawing::GeometryIndex::Place* last = nullptr;
        bool isAll = true;

        template <class Piece, class Visit>
        void forEach(const std::vector<Piece>& pieces, Visit visit) const
        {
            if (isAll)
                std::for_each(pieces.begin(), pieces.end(), visit);
            for (const drawing::GeometryIndex::Place* place = first; place != last; ++place)
                visit(pieces[place->index]);
        }
    };
    /// Calls `visit(group, primitives, texts)` for each visible group, in drawing order, with those
    /// of its pieces that may overlap the box.
    template <class Visit>
    void forEachGroupNear(const drawing::Box& box, Visit visit) const;

    /// Calls `onPrimitive(group, primitive)` and `onText(group, run)`, in drawing order, for
    /// everything visible whose bounds overlap the box.
    template <class OnPrimitive, class OnText>
    void forEachNear(const drawing::Box& box, OnPrimitive onPrimitive, OnText onText) const;

    /// A viewport that is on, and what is visible through it.
    struct Window
    {
        drawing::SheetViewport viewport;
        std::shared_ptr<const ShownScene> scene;
    };

    /// The same scene seen through a viewport that was moved.
    ShownScene with(const drawing::SheetViewport& viewport) const;

    const Scene& scene() const { return m_scene; }
    const std::vector<Window>& windows() const { return m_windows; }
    std::size_t partCount() const { return m_looks.size(); }
    /// The extents of what is visible, or of everything when nothing is visible.
    const drawing::Box& extents() const { return m_extents; }
    const QColor& background() const { return m_background; }
    /// The number of visible vertices. A text counts as many vertices as take the same time.
    std::size_t vertexCount() const { return m_vertexCount; }

private:
    void openWindows(const LookSource& source);

    Scene m_scene;
    std::vector<std::vector<GroupLook>> m_looks; ///< Indexed by part and group.
    std::vector<Window> m_windows;
    QColor m_background;
    drawing::Box m_extents;
    std::size_t m_vertexCount = 0;
};

template <class Visit>
void ShownScene::forEachPieceOf(const std::vector<int>& entities, Visit visit) const
{
    const EntitySet wanted(entities);
    for (std::size_t part = 0; part < m_looks.size(); ++part) {
        const drawing::EntityRange& range = m_scene.parts[part]->entities;
        const auto next =
            std::lower_bound(entities.begin(), entities.end(), static_cast<int>(range.first));
        if (next == entities.end() || static_cast<std::size_t>(*next) >= range.last)
            continue;
        forEachGroupOf(part, [&](const Group& group) {
            const auto offer = [&](const auto& piece) {
                if (wanted.contains(piece.entity))
                    visit(group, piece);
            };
            std::for_each(
                group.geometry.primitives.begin(), group.geometry.primitives.end(), offer);
            std::for_each(group.geometry.texts.begin(), group.geometry.texts.end(), offer);
        });
    }
}

template <class Visit>
void ShownScene::forEachGroupNear(const drawing::Box& box, Visit visit) const
{
    using Place = drawing::GeometryIndex::Place;
    for (std::size_t part = 0; part < m_looks.size(); ++part) {
        const drawing::GeometryIndex& index = m_scene.parts[part]->index;
        if (!index.narrows(box)) {
            forEachGroupOf(
                part, [&visit](const Group& group) { visit(group, Pieces(), Pieces()); });
            continue;
        }
        const drawing::GeometryIndex::Found found = index.find(box);
        const auto take = [](const std::vector<Place>& places, std::size_t& at, std::size_t group) {
            const Place* const first = places.data() + at;
            while (at < places.size() && places[at].group == group)
                ++at;
            return Pieces{first, places.data() + at, false};
        };
        std::size_t primitive = 0;
        std::size_t text = 0;
        for (std::size_t i = 0; i < m_looks[part].size(); ++i) {
            const Pieces primitives = take(found.primitives, primitive, i);
            const Pieces texts = take(found.texts, text, i);
            const bool isEmpty = primitives.first == primitives.last && texts.first == texts.last;
            if (m_looks[part][i].visible && !isEmpty)
                visit(Group{m_scene.parts[part]->groups[i], m_looks[part][i], part}, primitives,
                    texts);
        }
    }
}

template <class OnPrimitive, class OnText>
void ShownScene::forEachNear(const drawing::Box& box, OnPrimitive onPrimitive, OnText onText) const
{
    forEachGroupNear(box, [&](const Group& group, const Pieces& primitives, const Pieces& texts) {
        if (!group.geometry.bounds.intersects(box))
            return;
        const auto offerTo = [&](const auto& on) {
            return [&group, &box, &on](const auto& piece) {
                if (piece.bounds.intersects(box))
                    on(group, piece);
            };
        };
        primitives.forEach(group.geometry.primitives, offerTo(onPrimitive));
        texts.forEach(group.geometry.texts, offerTo(onText));
    });
}

using ScenePointer = std::shared_ptr<const ShownScene>;
