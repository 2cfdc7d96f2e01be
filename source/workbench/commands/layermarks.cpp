#include "layermarks.h"

#include "benchtexts.h"
#include "commandinvoker.h"
#include "hostcodes.h"
#include "rowselection.h"
#include "vnmessages.h"
#include "vnstrings.h"

#include <QStringList>

#include <set>

namespace layermarks {

namespace {

namespace key = vnsi::layerkey;
using vnsi::VnJsonPtr;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr int kMostNamesShown = 5;
constexpr int kMostProblemsShown = 10;

} // namespace

VnJsonPtr makeTree(const drawing::Drawing& drawing, const layerrecords::Filter& passes)
{
    static const layerrecords::Provider names({key::kName});
    return names.tree(drawing, passes);
}

std::vector<drawing::LayerId> layersOf(
    const drawing::Drawing& drawing, const std::vector<int>& entities)
{
    std::vector<drawing::LayerId> layers;
    std::set<drawing::LayerId> known;
    for (const int entity : entities) {
        const drawing::LayerId layer = drawing.entities()[static_cast<std::size_t>(entity)].layer;
        if (drawing.layer(layer) && known.insert(layer).second)
            layers.push_back(layer);
    }
    return layers;
}

QStringList chosenNames(const CommandContext& context)
{
    const std::vector<drawing::LayerId> layers =
        context.layers.empty() ? layersOf(context.drawing, context.selection) : context.layers;
    QStringList names;
    for (const drawing::LayerId id : layers)
        names += context.drawing.layer(id)->properties.name;
    return names;
}

bool mayGo(const drawing::Drawing& drawing, const drawing::Layer& layer)
{
    return layer.properties.name != QLatin1String("0") && layer.id != drawing.currentLayer() &&
           !layer.dependsOnReference;
}

bool show(CommandContext& context, const OdString& dialog, const VnJsonPtr& tree,
    std::function<void(const VnJsonPtr& tree)> answer, const QStringList& rows)
{
    const RowSelection selection(rows);
    const auto invoker = CommandInvoker::make([answer = std::move(answer)](const VnJsonPtr& asked) {
        if (answer)
            answer(asked);
    });
    const VnJsonPtr outcome =
        vnsi::vnuiShowModelDialogEx(kService, dialog, tree, invoker, context.parent);
    return outcome && outcome->GetDataI("result") == 1;
}

std::vector<Marked> marked(const VnJsonPtr& tree, vnsi::LayerStatus status)
{
    std::vector<Marked> layers;
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = list(i);
        if (vnsi::LayerRecord(record).asksFor(status))
            layers.push_back({layerrecords::idOf(record), layerrecords::nameOf(record)});
    }
    return layers;
}

std::vector<drawing::LayerId> present(CommandContext& context, const std::vector<Marked>& layers)
{
    std::vector<drawing::LayerId> ids;
    QStringList vanished;
    for (const Marked& layer : layers) {
        if (context.drawing.layer(layer.id))
            ids.push_back(layer.id);
        else
            vanished += QStringLiteral("“%1”").arg(layer.name);
    }
    if (vanished.isEmpty())
        return ids;
    const QString names = vanished.mid(0, kMostNamesShown).join(QStringLiteral("、"));
    tell(context, Texts::tr("图层%1%2已不存在，已跳过。")
                      .arg(names, vanished.size() > kMostNamesShown
                                      ? Texts::tr("等 %1 个").arg(vanished.size())
                                      : QString()));
    return ids;
}

void tell(CommandContext& context, const QString& text)
{
    if (context.say)
        context.say(text);
    if (context.notice)
        context.notice(text);
}

void warn(const QString& text)
{
    vnsi::vnuiMessageBox(vnsi::vnutQStringToOdString(text),
        vnsi::vnutQStringToOdString(vnsi::kProductName), vnsi::kVnIconWarning);
}

bool confirms(const QString& question)
{
    return vnsi::vnuiMessageBox(vnsi::vnutQStringToOdString(question),
               vnsi::vnutQStringToOdString(vnsi::kProductName),
               vnsi::kVnYesNo | vnsi::kVnIconQuestion) == vnsi::kVnAnswerYes;
}

void report(CommandContext& context, const QString& heading, QStringList& problems)
{
    if (problems.isEmpty())
        return;
    QString text = heading;
    for (const QString& problem : problems.mid(0, kMostProblemsShown))
        text += QLatin1Char('\n') + problem;
    if (problems.size() > kMostProblemsShown) {
        text += Texts::tr("\n（共 %1 条，其余见命令行）").arg(problems.size());
        for (const QString& problem : problems)
            context.say(problem);
    }
    problems.clear();
    warn(text);
}

} // namespace layermarks
