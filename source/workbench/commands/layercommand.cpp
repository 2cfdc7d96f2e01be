#include "layercommand.h"
#include "benchtexts.h"
#include "hostextras.h"

#include "commandinvoker.h"
#include "drawing.h"
#include "layerchanges.h"
#include "layermarks.h"
#include "namerule.h"
#include "recordprovider.h"

#include <QSet>
#include <QSettings>

using layerrecords::Provider;
using vnsi::LayerRecord;
using vnsi::LayerRecordList;
using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr wchar_t kDialog[] = L"Dialog/CmdLayer";
constexpr char kWidthsSetting[] = "layerColumnWidths";

/// Stores the column widths from the dialog's last request for the next opening.
void storeWidths(const VnJsonPtr& tree)
{
    QVariantList widths;
    const VnJsonPtr told = tree->GetDataJ(vnsi::managerkey::kColumnWidths);
    for (int column = 0; column < told.ArrayCount(); ++column)
        widths.append(hostextras::intOf(told(column), 0));
    if (!widths.isEmpty())
        QSettings().setValue(QLatin1String(kWidthsSetting), widths);
}

VnJsonPtr makeTree(const drawing::Drawing& drawing)
{
    VnJsonPtr tree = Provider::full().tree(drawing);
    const QVariantList widths = QSettings().value(QLatin1String(kWidthsSetting)).toList();
    if (widths.isEmpty())
        return tree;
    const VnJsonPtr array = hostextras::createArray(widths.size());
    for (const QVariant& width : widths)
        hostextras::appendInt(array, width.toInt());
    tree->SetDataJ(vnsi::managerkey::kColumnWidths, array);
    return tree;
}

/// The first of 图层1, 图层2, ... that is not in use.
QString freeName(const LayerRecordList& layers)
{
    QSet<QString> taken;
    for (const LayerRecord& record : layers)
        taken.insert(vnsi::foldedName(layerrecords::nameOf(record.node())));
    QString name;
    int number = 0;
    do {
        name = Texts::tr("图层%1").arg(++number);
    } while (taken.contains(vnsi::foldedName(name)));
    return name;
}

} // namespace

void LayerPropertiesCommand::run(CommandContext& context)
{
    const auto invoker =
        CommandInvoker::make([&](const VnJsonPtr& tree) { answer(context, tree); });
    const VnJsonPtr tree = makeTree(context.drawing);
    vnsi::vnuiShowModelDialogEx(kService, kDialog, tree, invoker, context.parent);
    storeWidths(tree);
}

void LayerPropertiesCommand::answer(CommandContext& context, const VnJsonPtr& tree)
{
    switch (tree->GetDataI(vnsi::requestkey::kRequestCode, -1)) {
    case vnsi::kManagerNewLayer:
        appendLayer(context.drawing, tree);
        break;
    case vnsi::kManagerDelete: // The marks take effect with "apply".
        break;
    case vnsi::kManagerApply:
        apply(context, tree);
        break;
    default:
        break;
    }
}

/// Adds a layer that looks like the last selected one.
void LayerPropertiesCommand::appendLayer(const drawing::Drawing& drawing, const VnJsonPtr& tree)
{
    const LayerRecordList layers = LayerRecordList::of(tree);
    if (!layers.exists())
        return;
    drawing::Layer layer;
    const LayerRecord pattern =
        layers[tree->GetDataI(vnsi::managerkey::kSelectCount) > 0
                   ? tree->GetDataI(vnsi::managerkey::kLastSelectedIndex, -1)
                   : -1];
    if (!pattern.isNull())
        layer.properties = Provider::full().read(pattern.node(), layer.properties);
    layer.properties.name = freeName(layers);
    layer.properties.description.clear();
    layer.properties.plotStyle = drawing.newPlotStyle(layer.properties.colorIndex);

    for (LayerRecord record : layers)
        record.setSelected(false);
    LayerRecord added(Provider::full().make(layer, false));
    added.setSelected(true);
    added.markModified();
    hostextras::append(layers.node(), added.node());
}

void LayerPropertiesCommand::apply(CommandContext& context, const VnJsonPtr& tree)
{
    drawing::Drawing& drawing = context.drawing;
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    if (!list)
        return;
    QStringList refusals = LayerChanges(drawing).apply(list);
    drawing.publishStep();
    for (const QString& notice : drawing.takeNotices())
        context.say(notice);
    layermarks::report(context, Texts::tr("有 %1 项修改未能应用：").arg(refusals.size()), refusals);
}
