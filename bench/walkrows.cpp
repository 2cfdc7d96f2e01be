#include "canvas.h"
#include "drawing.h"
#include "layerkeys.h"
#include "layersample.h"
#include "linesdrawing.h"
#include "rows.h"
#include "serveddialog.h"
#include "stopwatch.h"
#include "walkkeys.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>

namespace bench {

namespace {

using namespace vnsi;

constexpr int kFewLayers = 1000;
constexpr int kLayers = 10000;
constexpr int kManyLayers = 100000;
constexpr int kDrawnLayers = 1000;
constexpr int kDrawnEntities = 200000;

VnJsonPtr makeWalkTree(int layers)
{
    VnJsonPtr tree = ElementValue::createObject(4);
    tree->SetDataJ(walkkey::kLayers, makeLayerTree(layers));
    return tree;
}

/// The layer walk with a given number of layers and a command that does nothing, so that only the
/// dialog's own work is measured.
struct Walk
{
    explicit Walk(int layers) : dialog(L"Dialog/CmdLaywalk", makeWalkTree(layers))
    {
        if (!dialog.isMade())
            return;
        list = dialog.find<QListWidget>("layerList");
        filter = dialog.find<QComboBox>("filterCombo");
        records = dialog.tree()->GetDataJ(walkkey::kLayers)->GetDataJ(layerkey::kList);
    }

    /// Clicks another row each time, so that one layer disappears and another one appears.
    /// Selecting the row itself is done by Qt.
    double click()
    {
        row = (row + list->count() / 3) % list->count();
        list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        QListWidgetItem* const item = list->item(row);
        return timed(Clock::Processor, [&] { emit list->itemClicked(item); });
    }
    /// Filters with another pattern each time, which a tenth of the layers matches.
    double narrow()
    {
        row = (row + 1) % 10;
        filter->setEditText(QStringLiteral("*-*%1").arg(row));
        const double seconds =
            timed(Clock::Processor, [this] { dialog.invoke("slot_FilterComboBoxReturnPressed"); });
        QApplication::processEvents();
        return seconds;
    }
    /// One pass over the records that reads their names and whether they are off.
    double pass() const
    {
        int sum = 0;
        const double seconds = timed(Clock::Processor, [&] {
            for (int i = 0, count = records.ArrayCount(); i < count; ++i) {
                const VnJsonPtr record = records(i);
                sum += record->GetDataSW(layerkey::kName).getLength();
                sum += record->GetDataB(layerkey::kOff) ? 1 : 0;
            }
        });
        return sum > 0 ? seconds : 0;
    }

    ServedDialog dialog;
    QListWidget* list = nullptr; ///< Null when there is no such dialog.
    QComboBox* filter = nullptr;
    VnJsonPtr records;
    int row = 0;
};

using Work = double (Walk::*)();

tl::expected<Sides, QString> againstPass(Work work)
{
    const auto walk = std::make_shared<Walk>(kLayers);
    if (!walk->list || walk->list->count() != kLayers)
        return tl::make_unexpected(QStringLiteral("the module made no walk of these layers"));
    return Sides{[walk, work] { return ((*walk).*work)(); }, [walk] { return walk->pass(); },
        QStringLiteral("one pass over the records' names and flags")};
}

tl::expected<Sides, QString> growth(Work work)
{
    const auto many = std::make_shared<Walk>(kManyLayers);
    const auto few = std::make_shared<Walk>(kFewLayers);
    if (!many->list || !few->list)
        return tl::make_unexpected(QStringLiteral("the module made no layer walk"));
    return Sides{[many, work] { return ((*many).*work)(); },
        [few, work] { return ((*few).*work)(); }, QStringLiteral("1,000 layers")};
}

/// A drawing on a canvas whose layers are shown one after the other.
struct ShownDrawing
{
    explicit ShownDrawing(const drawing::Drawing& opened, drawing::Geometry geometry)
        : layers(opened.layers())
    {
        canvas.setScene(std::make_shared<const drawing::Geometry>(std::move(geometry)));
        canvas.setLayers(layers);
        canvas.zoomToExtents();
        canvas.show();
        QApplication::processEvents();
    }

    double drawAll()
    {
        for (drawing::Layer& layer : layers)
            layer.properties.off = false;
        return draw();
    }
    double drawNext()
    {
        at = (at + 1) % layers.size();
        for (std::size_t i = 0; i < layers.size(); ++i)
            layers[i].properties.off = i != at;
        return draw();
    }
    double draw()
    {
        return timed(Clock::Wall, [this] {
            canvas.setLayers(layers);
            while (!canvas.isPainted())
                QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
    }

    std::vector<drawing::Layer> layers;
    Canvas canvas;
    std::size_t at = 0;
};

tl::expected<Sides, QString> redraw(const QString& folder)
{
    const QString path = folder + QStringLiteral("/lines.dxf");
    if (!writeLines(path, kDrawnEntities, kDrawnLayers))
        return tl::make_unexpected(QStringLiteral("no drawing could be written in %1").arg(folder));
    const auto opened = drawing::Drawing::open(path);
    if (!opened)
        return tl::make_unexpected(opened.error().text);
    auto geometry = drawing::buildGeometry(**opened);
    if (!geometry || (*opened)->layers().size() < kDrawnLayers)
        return tl::make_unexpected(QStringLiteral("the drawing has no geometry"));
    const auto shown = std::make_shared<ShownDrawing>(**opened, std::move(*geometry));
    return Sides{[shown] { return shown->drawNext(); }, [shown] { return shown->drawAll(); },
        QStringLiteral("drawing all of them")};
}

} // namespace

std::vector<Row> walkRows(const QString& folder)
{
    using Kind = Budget::Kind;
    const auto row = [](const char* name, const char* what, const Budget& budget, int samples,
                         int quickSamples, auto prepare) {
        return Row{name, QString::fromUtf8(what), Measure::Processor, budget, samples, quickSamples,
            prepare};
    };
    return {
        row("walk/click", "click in the layer walk, 10,000 layers", {Kind::AtMostTimes, 3}, 101, 31,
            [] { return againstPass(&Walk::click); }),
        row("walk/click_growth", "click in the layer walk, 100,000 layers",
            {Kind::GrowthExponent, 1.1, 2}, 31, 7, [] { return growth(&Walk::click); }),
        row("walk/filter", "filter in the layer walk, 10,000 layers, a tenth passes",
            {Kind::AtMostTimes, 3}, 101, 31, [] { return againstPass(&Walk::narrow); }),
        row("walk/filter_growth", "filter in the layer walk, 100,000 layers",
            {Kind::GrowthExponent, 1.1, 2}, 31, 7, [] { return growth(&Walk::narrow); }),
        {"walk/redraw",
            QStringLiteral("redraw after a walk click, 200,000 entities on 1,000 layers"),
            Measure::Wall, {Kind::AtMostTimes, 0.5}, 15, 5, [folder] { return redraw(folder); }},
    };
}

} // namespace bench
