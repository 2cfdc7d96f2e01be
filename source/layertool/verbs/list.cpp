#include "verbs.h"

#include "layerfields.h"

#include "drawing.h"

namespace layertool {

namespace {

/// Where the entities of a layer are.
struct Content
{
    int model = 0;
    int layouts = 0;
    int blocks = 0;
    QSet<int> inBlocks; ///< Block definitions, as indices.
};

QHash<int, Content> contentByLayer(const drawing::Drawing& drawing)
{
    QHash<int, Content> all;
    for (const drawing::Entity& entity : drawing.entities()) {
        if (entity.removed || entity.subEntity || entity.layer == drawing::LayerId::None)
            continue;
        Content& content = all[static_cast<int>(entity.layer)];
        const bool inBlock =
            entity.block >= 0 && !drawing.blocks()[static_cast<size_t>(entity.block)].layout;
        if (inBlock) {
            ++content.blocks;
            content.inBlocks.insert(entity.block);
        } else if (entity.paperSpace || entity.block >= 0) {
            ++content.layouts;
        } else {
            ++content.model;
        }
    }
    return all;
}

QString blockNames(const drawing::Drawing& drawing, const Content& content)
{
    QStringList names;
    for (const int block : content.inBlocks)
        names += drawing.blocks()[static_cast<size_t>(block)].name;
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// Layer tables: every property, where the entities are, and who uses the layer.
class ListVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments&) override { return {}; }
    Expected<void> run(drawing::Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;
};

std::vector<Column> ListVerb::columns() const
{
    std::vector<Column> all = layerColumns();
    all.push_back({"current", QT_TRANSLATE_NOOP("layertool", "当前")});
    all.push_back({"model", QT_TRANSLATE_NOOP("layertool", "模型")});
    all.push_back({"layouts", QT_TRANSLATE_NOOP("layertool", "布局")});
    all.push_back({"blocks", QT_TRANSLATE_NOOP("layertool", "块中")});
    all.push_back({"used-in-blocks", QT_TRANSLATE_NOOP("layertool", "所在的块")});
    return all;
}

Expected<void> ListVerb::run(drawing::Drawing& drawing, const Job&, Result& result)
{
    const auto contents = contentByLayer(drawing);
    for (const drawing::Layer& layer : drawing.layers()) {
        const Content content = contents.value(static_cast<int>(layer.id));
        QJsonObject row = layerJson(layer.properties);
        row.insert(QStringLiteral("current"), layer.id == drawing.currentLayer());
        row.insert(QStringLiteral("model"), content.model);
        row.insert(QStringLiteral("layouts"), content.layouts);
        row.insert(QStringLiteral("blocks"), content.blocks);
        row.insert(QStringLiteral("used-in-blocks"), blockNames(drawing, content));
        result.data.append(row);
    }
    result.counts.insert(QStringLiteral("layers"), static_cast<int>(drawing.layers().size()));
    return {};
}

} // namespace

VerbRow listVerb()
{
    return {"list", QT_TRANSLATE_NOOP("layertool", "列出图层：特性、对象个数、在何处使用。"), {},
        "text csv json", false, makeVerb<ListVerb>};
}

} // namespace layertool
