#include "layerkeys.h"
#include "layersample.h"
#include "rows.h"
#include "serveddialog.h"
#include "stopwatch.h"
#include "vnstrings.h"

#include <QItemSelectionModel>
#include <QListWidget>
#include <QPushButton>

namespace bench {

namespace {

using namespace vnsi;

constexpr int kFewLayers = 1000;
constexpr int kManyLayers = 100000;

/// The delete dialog with every other layer selected, so that the selection consists of as many
/// ranges as possible.
struct DeleteDialog
{
    explicit DeleteDialog(int layers) : dialog(L"Dialog/CmdLaydel", makeLayerTree(layers))
    {
        if (!dialog.isMade())
            return;
        ok = dialog.find<QPushButton>("okButton");
        const auto* const list = dialog.find<QListWidget>("layerList");
        QItemSelection half;
        for (int row = 0; row < layers; row += 2) {
            const QModelIndex index = list->model()->index(row, 0);
            half.append(QItemSelectionRange(index));
        }
        list->selectionModel()->select(half, QItemSelectionModel::ClearAndSelect);
    }

    double confirm()
    {
        return timed(Clock::Processor, [this] { ok->click(); });
    }
    bool hasMarked() const
    {
        const VnJsonPtr list = dialog.tree()->GetDataJ(layerkey::kList);
        const int last = list.ArrayCount() - 2;
        return list(last)->GetDataI(layerkey::kStatus) == kLayerDelete &&
               list(last + 1)->GetDataI(layerkey::kStatus) == kLayerOrdinary;
    }

    ServedDialog dialog;
    QPushButton* ok = nullptr; ///< Null when there is no such dialog.
};

/// One pass over the records that reads their names as the dialog does.
double passOver(const VnJsonPtr& list)
{
    int length = 0;
    const double seconds = timed(Clock::Processor, [&] {
        for (int i = 0, count = list.ArrayCount(); i < count; ++i)
            length += vnutOdStringToQString(list(i)->GetDataSW(layerkey::kName)).size();
    });
    return length > 0 ? seconds : 0;
}

tl::expected<Sides, QString> confirmGrowth()
{
    const auto many = std::make_shared<DeleteDialog>(kManyLayers);
    const auto few = std::make_shared<DeleteDialog>(kFewLayers);
    if (!many->ok || !few->ok)
        return tl::make_unexpected(QStringLiteral("the module made no delete dialog"));
    many->confirm();
    if (!many->hasMarked())
        return tl::make_unexpected(QStringLiteral("the delete dialog marked nothing"));
    return Sides{[many] { return many->confirm(); }, [few] { return few->confirm(); },
        QStringLiteral("1,000 layers")};
}

tl::expected<Sides, QString> confirmAgainstPass()
{
    const auto many = std::make_shared<DeleteDialog>(kManyLayers);
    if (!many->ok)
        return tl::make_unexpected(QStringLiteral("the module made no delete dialog"));
    return Sides{[many] { return many->confirm(); },
        [many] { return passOver(many->dialog.tree()->GetDataJ(layerkey::kList)); },
        QStringLiteral("one pass over the records' names")};
}

} // namespace

std::vector<Row> deleteDialogRows()
{
    using Kind = Budget::Kind;
    return {
        {"delete/growth", QStringLiteral("OK of the delete dialog, 100,000 layers, half selected"),
            Measure::Processor, {Kind::GrowthExponent, 1.1, 2}, 7, 3, confirmGrowth},
        {"delete/pass", QStringLiteral("OK of the delete dialog, 100,000 layers, half selected"),
            Measure::Processor, {}, 7, 3, confirmAgainstPass},
    };
}

} // namespace bench
