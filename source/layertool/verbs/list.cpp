#include "verbs.h"

#include "layercontent.h"
#include "layerfields.h"

#include "drawing.h"

namespace layertool {

namespace {

QString blockNames(const drawing::Drawing& drawing, const LayerContent& content)
{
    QStringList names;
    for (const int block : content.inBlocks)
        names += drawing.blocks()[static_cast<size_t>(block)].name;
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// Lists layers with all properties, the places of their entities, and what uses them.
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
    const std::vector<Column> content = contentColumns();
    all.insert(all.end(), content.begin(), content.end());
    return all;
}

Expected<void> ListVerb::run(drawing::Drawing& drawing, const Job&, Result& result)
{
    const LayerContents contents(drawing);
    const size_t columnCount = columns().size();
    result.cells.reserve(drawing.layers().size());
    for (const drawing::Layer& layer : drawing.layers()) {
        const LayerContent& content = contents.of(layer.id);
        std::vector<QVariant> row;
        row.reserve(columnCount);
        for (const LayerField& field : layerFields())
            row.push_back(field.get(layer.properties));
        row.insert(row.end(), {layer.id == drawing.currentLayer(), content.model, content.layouts,
                                  content.blocks, blockNames(drawing, content)});
        result.cells.push_back(std::move(row));
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
