#include "layeruses.h"

#include "benchtexts.h"
#include "file/groupcode.h"
#include "file/owntags.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace layeruses {

using drawing::Block;
using drawing::Drawing;
using drawing::Entity;
using drawing::EntityKind;
using drawing::LayerId;

namespace {

constexpr int kMostReasons = 5;

struct KindName
{
    const char* type;
    const char* name;
};

constexpr KindName kNames[] = {
    {"LINE", QT_TRANSLATE_NOOP("workbench", "直线")},
    {"LWPOLYLINE", QT_TRANSLATE_NOOP("workbench", "多段线")},
    {"POLYLINE", QT_TRANSLATE_NOOP("workbench", "多段线")},
    {"CIRCLE", QT_TRANSLATE_NOOP("workbench", "圆")},
    {"ARC", QT_TRANSLATE_NOOP("workbench", "圆弧")},
    {"ELLIPSE", QT_TRANSLATE_NOOP("workbench", "椭圆")},
    {"SPLINE", QT_TRANSLATE_NOOP("workbench", "样条曲线")},
    {"HELIX", QT_TRANSLATE_NOOP("workbench", "螺旋")},
    {"POINT", QT_TRANSLATE_NOOP("workbench", "点")},
    {"TEXT", QT_TRANSLATE_NOOP("workbench", "文字")},
    {"MTEXT", QT_TRANSLATE_NOOP("workbench", "多行文字")},
    {"INSERT", QT_TRANSLATE_NOOP("workbench", "块参照")},
    {"ATTDEF", QT_TRANSLATE_NOOP("workbench", "属性定义")},
    {"HATCH", QT_TRANSLATE_NOOP("workbench", "填充")},
    {"SOLID", QT_TRANSLATE_NOOP("workbench", "实心面")},
    {"DIMENSION", QT_TRANSLATE_NOOP("workbench", "标注")},
    {"LEADER", QT_TRANSLATE_NOOP("workbench", "引线")},
    {"MULTILEADER", QT_TRANSLATE_NOOP("workbench", "多重引线")},
    {"VIEWPORT", QT_TRANSLATE_NOOP("workbench", "视口")},
    {"ACAD_TABLE", QT_TRANSLATE_NOOP("workbench", "表格")},
    {"IMAGE", QT_TRANSLATE_NOOP("workbench", "图像")},
    {"WIPEOUT", QT_TRANSLATE_NOOP("workbench", "区域覆盖")},
    {"MLINE", QT_TRANSLATE_NOOP("workbench", "多线")},
};

QString kindName(const QByteArray& type)
{
    for (const KindName& known : kNames) {
        if (type == known.type)
            return Texts::tr(known.name);
    }
    return QString::fromLatin1(type);
}

QByteArray typeOf(const Drawing& drawing, const Entity& entity)
{
    drawing::TagReader tags = drawing.tags(entity);
    drawing::Tag type;
    return tags.next(type) ? drawing::bytesOf(type.trimmed()) : QByteArray();
}

/// The layout of a block, or the space of an entity in the ENTITIES section.
QString spaceName(const Drawing& drawing, const Entity& entity)
{
    for (const drawing::Layout& layout : drawing.layouts()) {
        if (drawing::holds(layout, entity))
            return layout.name.isEmpty() ? Texts::tr("布局")
                                         : Texts::tr("布局“%1”").arg(layout.name);
    }
    return Texts::tr("模型空间");
}

bool isInBlock(const Drawing& drawing, const Entity& entity)
{
    return entity.block >= 0 && !drawing.blocks()[static_cast<size_t>(entity.block)].layout;
}

/// Entities of one kind in one place.
struct Heap
{
    LayerId layer; ///< None when layers do not matter.
    EntityKind kind;
    int block;
    bool paperSpace;
    QByteArray type; ///< The type name of entities without a known kind.

    bool operator<(const Heap& other) const
    {
        return std::tie(layer, kind, block, paperSpace, type) <
               std::tie(other.layer, other.kind, other.block, other.paperSpace, other.type);
    }
};

/// The block references by the definition that they refer to.
std::map<int, std::vector<int>> references(const Drawing& drawing)
{
    std::map<QString, int> numbers;
    for (size_t i = 0; i < drawing.blocks().size(); ++i)
        numbers.emplace(drawing.blocks()[i].name.toLower(), static_cast<int>(i));
    std::map<int, std::vector<int>> placed;
    for (size_t i = 0; i < drawing.entities().size(); ++i) {
        const Entity& entity = drawing.entities()[i];
        if (entity.kind != EntityKind::Insert || entity.removed)
            continue;
        const drawing::Tag name = drawing::findOwn(drawing.tags(entity), drawing::group::kName);
        const auto known = numbers.find(drawing.decoded(name.trimmed()).toLower());
        if (known != numbers.end())
            placed[known->second].push_back(static_cast<int>(i));
    }
    return placed;
}

using Heaps = std::map<Heap, std::vector<int>>;

/// The entities on the layers, grouped. `apart` also separates the layers.
Heaps heapsOf(const Drawing& drawing, const std::vector<LayerId>& layers, bool apart)
{
    const std::set<LayerId> wanted(layers.begin(), layers.end());
    Heaps heaps;
    for (size_t i = 0; i < drawing.entities().size(); ++i) {
        const Entity& entity = drawing.entities()[i];
        if (entity.removed || entity.subEntity || wanted.count(entity.layer) == 0)
            continue;
        const QByteArray type =
            entity.kind == EntityKind::Other ? typeOf(drawing, entity) : QByteArray();
        heaps[{apart ? entity.layer : LayerId::None, entity.kind, entity.block, entity.paperSpace,
                  type}]
            .push_back(static_cast<int>(i));
    }
    return heaps;
}

LayerUse useOf(const Drawing& drawing, const std::vector<int>& entities)
{
    const Entity& first = drawing.entities()[static_cast<size_t>(entities.front())];
    LayerUse use;
    use.kind = kindName(typeOf(drawing, first));
    use.block = isInBlock(drawing, first) ? first.block : -1;
    use.place = use.block >= 0
                    ? Texts::tr("块“%1”").arg(drawing.blocks()[static_cast<size_t>(use.block)].name)
                    : spaceName(drawing, first);
    use.entities = entities;
    return use;
}

bool isMoreFrequent(const LayerUse& a, const LayerUse& b)
{
    // Uses of equal frequency are in the order of the drawing.
    return a.entities.size() != b.entities.size() ? a.entities.size() > b.entities.size()
                                                  : a.entities.front() < b.entities.front();
}

QStringList ownReasons(const Drawing& drawing, const drawing::Layer& layer)
{
    QStringList reasons;
    if (layer.properties.name == QLatin1String("0"))
        reasons += Texts::tr("图层“0”总是存在");
    if (layer.id == drawing.currentLayer())
        reasons += Texts::tr("是当前图层");
    if (layer.dependsOnReference)
        reasons += Texts::tr("依赖外部参照");
    return reasons;
}

} // namespace

std::vector<LayerUse> find(const Drawing& drawing, const std::vector<LayerId>& layers)
{
    std::vector<LayerUse> uses;
    for (const auto& [heap, entities] : heapsOf(drawing, layers, false))
        uses.push_back(useOf(drawing, entities));
    std::stable_sort(uses.begin(), uses.end(), isMoreFrequent);
    return uses;
}

std::vector<int> shownBy(const Drawing& drawing, const LayerUse& use)
{
    if (use.block < 0)
        return use.entities;
    const std::map<int, std::vector<int>> placed = references(drawing);
    std::set<int> seen;
    std::vector<int> open = {use.block};
    std::vector<int> shown;
    while (!open.empty()) {
        const int block = open.back();
        open.pop_back();
        const auto found = placed.find(block);
        if (!seen.insert(block).second || found == placed.end())
            continue;
        for (const int reference : found->second) {
            const Entity& entity = drawing.entities()[static_cast<size_t>(reference)];
            if (isInBlock(drawing, entity))
                open.push_back(entity.block);
            else
                shown.push_back(reference);
        }
    }
    std::sort(shown.begin(), shown.end());
    return shown;
}

std::vector<QStringList> reasonsToStay(const Drawing& drawing, const std::vector<LayerId>& layers)
{
    std::map<LayerId, std::vector<LayerUse>> uses;
    for (const auto& [heap, entities] : heapsOf(drawing, layers, true))
        uses[heap.layer].push_back(useOf(drawing, entities));
    std::vector<QStringList> all;
    for (const LayerId id : layers) {
        const drawing::Layer* const layer = drawing.layer(id);
        QStringList reasons = layer ? ownReasons(drawing, *layer) : QStringList();
        std::vector<LayerUse>& own = uses[id];
        std::stable_sort(own.begin(), own.end(), isMoreFrequent);
        for (size_t i = 0; i < own.size() && i < kMostReasons; ++i)
            reasons += Texts::tr("%1中有 %2 个%3")
                           .arg(own[i].place)
                           .arg(own[i].entities.size())
                           .arg(own[i].kind);
        if (layer && (own.size() > kMostReasons || (own.empty() && layer->used())))
            reasons += Texts::tr("共有 %1 个对象").arg(layer->entityCount);
        all.push_back(reasons);
    }
    return all;
}

} // namespace layeruses
