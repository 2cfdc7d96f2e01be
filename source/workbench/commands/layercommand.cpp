#include "layercommand.h"

#include "commandinvoker.h"
#include "drawing.h"
#include "layerkeys.h"
#include "layerrecords.h"
#include "posing.h"
#include "vnmessages.h"
#include "vnproduct.h"
#include "vnstrings.h"

#include <QCoreApplication>
#include <QSet>
#include <QUuid>

using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr wchar_t kDialog[] = L"Dialog/CmdLayer";
constexpr int kMostRefusalsShown = 10;

QString tr(const char* text)
{
    return QCoreApplication::translate("LayerPropertiesCommand", text);
}

VnJsonPtr makeTree(const drawing::Drawing& drawing)
{
    VnJsonPtr tree = vnsi::ElementValue::createObject(8);
    tree->SetDataJ(key::kList, layerrecords::makeList(drawing));
    return tree;
}

/// The first of 图层1, 图层2, ... that no record has.
QString freeName(const VnJsonPtr& list)
{
    QSet<QString> taken;
    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        taken.insert(layerrecords::nameOf(list(i)).toCaseFolded());
    QString name;
    int number = 0;
    do {
        name = tr("图层%1").arg(++number);
    } while (taken.contains(name.toCaseFolded()));
    return name;
}

/// The records that the dialog marked, in their order.
std::vector<VnJsonPtr> modifiedRecords(const VnJsonPtr& list)
{
    std::vector<VnJsonPtr> records;
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = list(i);
        if (record && layerrecords::isModified(record))
            records.push_back(record);
    }
    return records;
}

bool isMarkedForDeletion(const VnJsonPtr& record)
{
    return record->GetDataI(key::kStatus) == vnsi::kLayerDelete;
}

/// Frees names that one renamed layer gives up and another takes, so that their order does not
/// matter.
void stepAside(drawing::Drawing& drawing, const std::vector<VnJsonPtr>& records)
{
    QSet<int> renamed;
    for (const VnJsonPtr& record : records) {
        const drawing::Layer* layer = drawing.layer(layerrecords::idOf(record));
        if (layer && layer->properties.name != layerrecords::nameOf(record))
            renamed.insert(static_cast<int>(layer->id));
    }
    for (const VnJsonPtr& record : records) {
        const drawing::Layer* holder = drawing.findLayer(layerrecords::nameOf(record));
        if (!holder || holder->id == layerrecords::idOf(record) ||
            !renamed.contains(static_cast<int>(holder->id)))
            continue;
        drawing::LayerProperties aside = holder->properties;
        aside.name = QUuid::createUuid().toString(QUuid::WithoutBraces);
        // A refusal shows again, with its reason, when the layer takes its real name.
        (void)drawing.setLayerProperties(holder->id, aside);
    }
}

} // namespace

void LayerPropertiesCommand::run(CommandContext& context)
{
    const auto invoker =
        CommandInvoker::make([&](const VnJsonPtr& tree) { answer(context, tree); });
    vnsi::vnuiShowModelDialogEx(
        kService, kDialog, makeTree(context.drawing), invoker, context.parent);
}

void LayerPropertiesCommand::answer(CommandContext& context, const VnJsonPtr& tree)
{
    switch (tree->GetDataI(vnsi::requestkey::kRequestCode, -1)) {
    case vnsi::kManagerNewLayer:
        appendLayer(context.drawing, tree);
        break;
    case vnsi::kManagerDelete: // The marks are carried out with "apply".
        break;
    case vnsi::kManagerApply:
        apply(context, tree);
        break;
    default:
        break;
    }
}

void LayerPropertiesCommand::appendLayer(const drawing::Drawing& drawing, const VnJsonPtr& tree)
{
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    if (!list)
        return;
    drawing::Layer layer;
    if (tree->GetDataI(vnsi::managerkey::kSelectCount) > 0) {
        const VnJsonPtr pattern = list(tree->GetDataI(vnsi::managerkey::kLastSelectedIndex, -1));
        if (pattern)
            layer.properties = layerrecords::properties(pattern, layer.properties);
    }
    layer.properties.name = freeName(list);
    layer.properties.description.clear();
    if (const drawing::Layer* current = drawing.layer(drawing.currentLayer()))
        layer.properties.plotStyle = current->properties.plotStyle;

    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        list(i)->SetDataB(key::kSelected, false);
    const VnJsonPtr record = layerrecords::make(layer, false);
    record->SetDataB(key::kSelected, true);
    record->SetDataB(key::kModified, true);
    list->Append(record);
}

void LayerPropertiesCommand::apply(CommandContext& context, const VnJsonPtr& tree)
{
    drawing::Drawing& drawing = context.drawing;
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    const std::vector<VnJsonPtr> records = modifiedRecords(list);
    stepAside(drawing, records);
    for (const VnJsonPtr& record : records)
        applyProperties(drawing, record);
    for (const VnJsonPtr& record : records) {
        if (record->GetDataI(key::kStatus) == vnsi::kLayerCurrent &&
            layerrecords::idOf(record) != drawing::LayerId::None)
            note(drawing.setCurrentLayer(layerrecords::idOf(record)));
    }
    applyDeletions(drawing, list);
    for (const VnJsonPtr& record : records) {
        if (const drawing::Layer* layer = drawing.layer(layerrecords::idOf(record)))
            layerrecords::Provider::full().refresh(
                vnsi::LayerRecord(record), *layer, layer->id == drawing.currentLayer());
    }
    drawing.publishStep();
    for (const QString& notice : drawing.takeNotices())
        context.say(notice);
    reportRefusals();
}

void LayerPropertiesCommand::applyProperties(drawing::Drawing& drawing, const VnJsonPtr& record)
{
    const drawing::LayerId id = layerrecords::idOf(record);
    if (const drawing::Layer* layer = drawing.layer(id)) {
        note(drawing.setLayerProperties(id, layerrecords::properties(record, layer->properties)));
        return;
    }
    if (id != drawing::LayerId::None || isMarkedForDeletion(record))
        return;
    const auto added = drawing.addLayer(layerrecords::properties(record, {}));
    if (added)
        layerrecords::setId(record, *added);
    else
        m_refusals.append(added.error().text);
}

void LayerPropertiesCommand::applyDeletions(drawing::Drawing& drawing, const VnJsonPtr& list)
{
    const int count = list.ArrayCount();
    std::vector<VnJsonPtr> kept;
    kept.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const VnJsonPtr record = list(i);
        const bool goes = record && isMarkedForDeletion(record) && layerrecords::isModified(record);
        if (goes && drawing.layer(layerrecords::idOf(record)))
            note(drawing.removeLayer(layerrecords::idOf(record)));
        if (!goes || drawing.layer(layerrecords::idOf(record)))
            kept.push_back(record);
    }
    if (static_cast<int>(kept.size()) == count)
        return;
    list->Clear();
    for (const VnJsonPtr& record : kept)
        list->Append(record);
}

void LayerPropertiesCommand::note(const drawing::Expected<void>& outcome)
{
    if (!outcome)
        m_refusals.append(outcome.error().text);
}

void LayerPropertiesCommand::reportRefusals()
{
    if (m_refusals.isEmpty())
        return;
    const int count = m_refusals.size();
    QString text = tr("有 %1 项修改未能应用：").arg(count);
    for (const QString& refusal : m_refusals.mid(0, kMostRefusalsShown))
        text += QLatin1Char('\n') + refusal;
    if (count > kMostRefusalsShown)
        text += QStringLiteral("\n…");
    m_refusals.clear();
    vnsi::vnuiMessageBox(
        vnsi::vnutQStringToOdString(text), vnsi::kProductName, vnsi::kVnIconWarning);
}

void LayerPropertiesCommand::pose(CommandContext& context, const Camera& camera)
{
    posing::showDialog(kService, kDialog, makeTree(context.drawing), camera,
        QStringLiteral("layer-properties"), [&camera](QWidget& dialog) {
            posing::showNested(
                dialog, "slot_TableCellClicked", 0, 5, camera, QStringLiteral("host-color"));
            posing::showNested(dialog, "slot_TableCellClicked", 0, 8, camera,
                QStringLiteral("layer-transparency"));
            posing::showNested(
                dialog, "slot_TableCellDoubleClicked", 1, 1, camera, QStringLiteral("host-rename"));
        });
}
