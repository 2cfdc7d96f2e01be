#include "hostextras.h"
#include "layersample.h"
#include "rows.h"
#include "serveddialog.h"
#include "tablefillers.h"

#include <QJsonDocument>
#include <QVariant>

#include <malloc.h>

namespace bench {

namespace {

using namespace vnsi;

constexpr int kLayers = 10000;

/// The bytes per layer that `make` leaves allocated while its result is kept.
template <class Make>
double bytesPerLayer(Make make)
{
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    const double before = inUse();
    const auto kept = make();
    return (inUse() - before) / kLayers;
}

tl::expected<Sides, QString> treeAgainstMaps()
{
    const std::string json = hostextras::jsonOf(makeLayerTree(kLayers));
    const QByteArray text = QByteArray::fromStdString(json);
    const auto makeMaps = [text] { return QJsonDocument::fromJson(text).toVariant(); };
    return Sides{[] { return bytesPerLayer([] { return makeLayerTree(kLayers); }); },
        [makeMaps] { return bytesPerLayer(makeMaps); }, QStringLiteral("the same in variant maps")};
}

tl::expected<Sides, QString> tableAgainstBare()
{
    const VnJsonPtr tree = makeLayerTree(kLayers);
    const auto makeDialog = [tree] {
        return std::make_unique<ServedDialog>(L"Dialog/CmdLayer", tree);
    };
    const auto dialog = std::shared_ptr<ServedDialog>(makeDialog());
    const auto* const table = dialog->isMade() ? dialog->find<QTableWidget>("layerTable") : nullptr;
    if (!table)
        return tl::make_unexpected(QStringLiteral("the module made no layer dialog"));
    const auto looks = std::make_shared<std::vector<CellLook>>(looksOf(*table));
    const auto makeBare = [dialog, table, looks] {
        auto bare = std::make_unique<QTableWidget>();
        dressAs(*bare, *table);
        fillInBulk(*bare, *looks);
        return bare;
    };
    return Sides{[makeDialog] { return bytesPerLayer(makeDialog); },
        [makeBare] { return bytesPerLayer(makeBare); }, QStringLiteral("bare table widget")};
}

} // namespace

std::vector<Row> memoryRows()
{
    return {
        {"memory/tree", QStringLiteral("a layer in the value tree"), Measure::Memory, {}, 3, 1,
            treeAgainstMaps},
        {"memory/table", QStringLiteral("a layer in the dialog's table"), Measure::Memory, {}, 3, 1,
            tableAgainstBare},
    };
}

} // namespace bench
