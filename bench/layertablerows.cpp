#include "layersample.h"
#include "rows.h"
#include "serveddialog.h"
#include "stopwatch.h"
#include "tablefillers.h"

#include <QApplication>
#include <QTest>

namespace bench {

namespace {

constexpr int kLayers = 10000;
constexpr int kFewLayers = 1000;
constexpr int kManyLayers = 100000;
constexpr int kHandful = 100;
constexpr int kLockColumn = 4;
constexpr int kClicks = 50;

tl::unexpected<QString> noDialog()
{
    return tl::make_unexpected(QStringLiteral("the module made no layer dialog"));
}

/// The Layer Properties Manager with a given number of layers.
struct Manager
{
    explicit Manager(int layers) : dialog(L"Dialog/CmdLayer", makeLayerTree(layers))
    {
        if (dialog.isMade())
            table = dialog.find<QTableWidget>("layerTable");
        if (table && table->rowCount() != layers)
            table = nullptr;
    }

    double fill()
    {
        return timed(Clock::Processor, [this] { dialog.refill(); });
    }

    ServedDialog dialog;
    QTableWidget* table = nullptr; ///< Null when there is no such dialog or when it is not filled.
};

using Filler = void (*)(QTableWidget&, const std::vector<CellLook>&);

tl::expected<Sides, QString> fillAgainst(Filler filler, const char* comparedWith)
{
    const auto manager = std::make_shared<Manager>(kLayers);
    if (!manager->table)
        return noDialog();
    const auto bare = std::make_shared<QTableWidget>();
    dressAs(*bare, *manager->table);
    const auto looks = std::make_shared<std::vector<CellLook>>(looksOf(*manager->table));
    return Sides{[manager] { return manager->fill(); },
        [bare, looks, filler] { return timed(Clock::Processor, [&] { filler(*bare, *looks); }); },
        QString::fromUtf8(comparedWith)};
}

tl::expected<Sides, QString> fillGrowth()
{
    const auto many = std::make_shared<Manager>(kManyLayers);
    const auto few = std::make_shared<Manager>(kFewLayers);
    if (!many->table || !few->table)
        return noDialog();
    return Sides{[many] { return many->fill(); }, [few] { return few->fill(); },
        QStringLiteral("1,000 layers")};
}

/// The seconds of one click, from pressing the button to the painted table.
double clickSeconds(const QTableWidget& table)
{
    QWidget* const area = table.viewport();
    const int row = table.rowAt(area->height() / 2);
    const QPoint place = table.visualRect(table.model()->index(row, kLockColumn)).center();
    const double seconds = timed(Clock::Processor, [&] {
        for (int i = 0; i < kClicks; ++i) {
            QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, place);
            QApplication::processEvents();
        }
    });
    return seconds / kClicks;
}

tl::expected<Sides, QString> toggleClick()
{
    const auto many = std::make_shared<Manager>(kManyLayers);
    const auto few = std::make_shared<Manager>(kHandful);
    if (!many->table || !few->table)
        return noDialog();
    return Sides{[many] { return clickSeconds(*many->table); },
        [few] { return clickSeconds(*few->table); }, QStringLiteral("100 layers")};
}

} // namespace

std::vector<Row> layerTableRows()
{
    const auto bulk = [] { return fillAgainst(fillInBulk, "bare table widget in bulk"); };
    const auto rowByRow = [] {
        return fillAgainst(fillRowByRow, "row by row, a fresh pixmap each cell");
    };
    using Kind = Budget::Kind;
    return {
        {"fill/bulk", QStringLiteral("fill the layer table, 10,000 layers"), Measure::Processor,
            {Kind::AtMostTimes, 1.15}, 31, 7, bulk},
        {"fill/row_by_row", QStringLiteral("fill the layer table, 10,000 layers"),
            Measure::Processor, {Kind::AtLeastTimesFaster, 8}, 5, 3, rowByRow},
        {"fill/growth", QStringLiteral("fill the layer table, 100,000 layers"), Measure::Processor,
            {Kind::GrowthExponent, 1.1, 2}, 7, 3, fillGrowth},
        {"click/toggle", QStringLiteral("one click on a toggle cell, 100,000 layers"),
            Measure::Processor, {Kind::AtMostTimes, 2}, 15, 5, toggleClick},
    };
}

} // namespace bench
