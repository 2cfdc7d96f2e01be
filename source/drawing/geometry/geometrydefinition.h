#pragma once

#include "geometry.h"
#include "geometrycurves.h"

namespace drawing {

/// A property as an entity defines it.
struct EntitySetting
{
    enum class Source : quint8 { Layer, Block, Own };

    Source source = Source::Layer;
    int value = 0; ///< The entity's own value, as in `GeometrySetting`.
};

/// Layer and style as an entity defines them, before a surrounding block reference is taken into
/// account.
struct EntityStyle
{
    enum class Color : quint8 { ByLayer, ByBlock, Index, True };

    LayerId layer = LayerId::None;
    LayerId owner = LayerId::None; ///< For an attribute, the layer of its block reference.
    Color color = Color::ByLayer;
    quint32 value = 0;
    EntitySetting linetype;
    EntitySetting lineweight;
    EntitySetting transparency;
    float linetypeScale = 1;
};

/// The contents of a block, or of one entity, in its own coordinates. It is read once and drawn
/// many times.
struct Definition
{
    struct Shape
    {
        EntityStyle style;
        Primitive::Shape shape = Primitive::Shape::Lines;
        std::size_t first = 0;
        std::size_t count = 0;
        float width = 0;
        bool patternRestarts = false;
    };
    struct Text
    {
        EntityStyle style;
        TextRun run; ///< Complete except for its position.
        Vec3 origin;
        Vec3 right;
        Vec3 up;
    };
    struct Reference
    {
        EntityStyle style;
        int block = -1;
        Transform3 place; ///< The position of the first instance.
        Vec3 columnStep;
        Vec3 rowStep;
        int columns = 1;
        int rows = 1;
        /// The block is the whole picture of the entity and disappears together with it.
        bool isWhole = false;
    };

    struct Endless
    {
        EntityStyle style;
        Vec3 from;
        Vec3 direction;
        bool bothWays = false;
    };

    Path vertices; ///< A vertex with an x of NaN begins a new part.
    std::vector<Shape> shapes;
    std::vector<Text> texts;
    std::vector<Endless> endless;
    std::vector<Reference> references;

    bool isEmpty() const
    {
        return shapes.empty() && texts.empty() && endless.empty() && references.empty();
    }
    void clear();
};

} // namespace drawing
