#pragma once

#include "geometry.h"
#include "geometrycurves.h"

namespace drawing {

/// A property as an entity states it.
struct EntitySetting
{
    enum class Source : quint8 { Layer, Block, Own };

    Source source = Source::Layer;
    int value = 0; ///< As in `GeometrySetting`, where it is the entity's own.
};

/// Layer and style as an entity states them, before the block reference around it has its say.
struct EntityStyle
{
    enum class Color : quint8 { ByLayer, ByBlock, Index, True };

    LayerId layer = LayerId::None;
    LayerId owner = LayerId::None; ///< The layer of the block reference an attribute belongs to.
    Color color = Color::ByLayer;
    quint32 value = 0;
    EntitySetting linetype;
    EntitySetting lineweight;
    EntitySetting transparency;
    float linetypeScale = 1;
};

/// A block's (or one entity's) content in its own coordinates, read once and drawn many times.
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
        TextRun run; ///< Everything but the place.
        Vec3 origin;
        Vec3 right;
        Vec3 up;
    };
    struct Reference
    {
        EntityStyle style;
        int block = -1;
        Transform3 place; ///< Of the first instance.
        Vec3 columnStep;
        Vec3 rowStep;
        int columns = 1;
        int rows = 1;
        bool isWhole = false; ///< The block is all there is of the entity, and gone with it.
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
