#include "quickcommands.h"

#include "benchtexts.h"
#include "layeracts.h"
#include "layermarks.h"
#include "layermemory.h"

#include <QSettings>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace quickcommands {

using drawing::Drawing;
using drawing::LayerId;
using drawing::LayerProperties;
using layeracts::Layers;

/// The action of a command. `done` is the message with the number of layers.
struct Act
{
    enum Needs { Objects, Nothing };

    const char* name;
    Needs needs;
    QStringList (*run)(CommandContext& context, const Layers& layers);
    const char* done;
    /// Null when it is always possible.
    bool (*isPossible)(const CommandContext& context) = nullptr;
    const char* otherwise = nullptr;
};

namespace {

template <auto Member, bool Value>
QStringList set(CommandContext& context, const Layers& layers)
{
    return layeracts::change(
        context.drawing, layers, [](LayerProperties& properties) { properties.*Member = Value; });
}

QStringList isolate(CommandContext& context, const Layers& layers)
{
    const bool fades = QSettings().value(QStringLiteral("panel/isolateByLock")).toBool();
    return context.memory->isolation.isolate(context.drawing, layers,
        fades ? LayerIsolation::Way::LockAndFade : LayerIsolation::Way::Hide);
}

bool isIsolated(const CommandContext& context)
{
    return context.memory->isolation.isActive();
}

QStringList endIsolation(CommandContext& context, const Layers&)
{
    return context.memory->isolation.restore(context.drawing);
}

bool hasHistory(const CommandContext& context)
{
    return !context.memory->history.isEmpty();
}

QStringList goBack(CommandContext& context, const Layers&)
{
    return context.memory->history.goBack(context.drawing);
}

QStringList makeCurrent(CommandContext& context, const Layers& layers)
{
    const auto done = context.drawing.setCurrentLayer(layers.front());
    return done ? QStringList() : QStringList(done.error().text);
}

/// Moves the entities. Those on locked layers stay.
QStringList moveToCurrent(CommandContext& context, const Layers&)
{
    const Drawing& drawing = context.drawing;
    std::vector<int> movable;
    QStringList refusals;
    for (const int entity : context.selection) {
        const auto* const layer =
            drawing.layer(drawing.entities()[static_cast<std::size_t>(entity)].layer);
        if (!layer || !layer->properties.locked)
            movable.push_back(entity);
    }
    if (movable.size() < context.selection.size())
        refusals += Texts::tr("%1 个对象在锁定的图层上，未作更改。")
                        .arg(context.selection.size() - movable.size());
    const auto moved = context.drawing.moveEntities(movable, drawing.currentLayer());
    return moved ? refusals : refusals + QStringList(moved.error().text);
}

constexpr Act kActs[] = {
    {"LAYISO", Act::Objects, isolate, QT_TRANSLATE_NOOP("workbench", "已隔离 %1 个图层。")},
    {"LAYUNISO", Act::Nothing, endIsolation, QT_TRANSLATE_NOOP("workbench", "已恢复隔离前的图层。"),
        isIsolated, QT_TRANSLATE_NOOP("workbench", "没有隔离的图层。")},
    {"LAYFRZ", Act::Objects, set<&LayerProperties::frozen, true>,
        QT_TRANSLATE_NOOP("workbench", "已冻结 %1 个图层。")},
    {"LAYTHW", Act::Nothing, set<&LayerProperties::frozen, false>,
        QT_TRANSLATE_NOOP("workbench", "已解冻 %1 个图层。")},
    {"LAYOFF", Act::Objects, set<&LayerProperties::off, true>,
        QT_TRANSLATE_NOOP("workbench", "已关闭 %1 个图层。")},
    {"LAYON", Act::Nothing, set<&LayerProperties::off, false>,
        QT_TRANSLATE_NOOP("workbench", "已打开 %1 个图层。")},
    {"LAYLCK", Act::Objects, set<&LayerProperties::locked, true>,
        QT_TRANSLATE_NOOP("workbench", "已锁定 %1 个图层。")},
    {"LAYULK", Act::Objects, set<&LayerProperties::locked, false>,
        QT_TRANSLATE_NOOP("workbench", "已解锁 %1 个图层。")},
    {"LAYCUR", Act::Objects, moveToCurrent,
        QT_TRANSLATE_NOOP("workbench", "对象已更改到当前图层。")},
    {"LAYMCUR", Act::Objects, makeCurrent, QT_TRANSLATE_NOOP("workbench", "已更改当前图层。")},
    {"LAYERP", Act::Nothing, goBack, QT_TRANSLATE_NOOP("workbench", "已恢复上一个图层状态。"),
        hasHistory, QT_TRANSLATE_NOOP("workbench", "没有上一个图层状态。")},
};

Layers allLayers(const Drawing& drawing)
{
    Layers layers;
    for (const drawing::Layer& layer : drawing.layers())
        layers.push_back(layer.id);
    return layers;
}

class QuickCommand : public LayerCommand
{
public:
    explicit QuickCommand(const Act& act) : m_act(act) {}

    void run(CommandContext& context) override
    {
        if (m_act.isPossible && !m_act.isPossible(context))
            return layermarks::tell(context, Texts::tr(m_act.otherwise));
        const Layers layers = this->layers(context);
        if (layers.empty())
            return layermarks::tell(context, Texts::tr("没有选择对象，未作更改。"));
        QStringList refusals = m_act.run(context, layers);
        if (refusals.isEmpty())
            return layermarks::tell(context,
                Texts::tr(m_act.done).replace(QLatin1String("%1"), QString::number(layers.size())));
        layermarks::report(context, Texts::tr("有些更改没有完成："), refusals);
    }

private:
    Layers layers(CommandContext& context) const
    {
        if (!context.layers.empty())
            return context.layers;
        if (m_act.needs == Act::Nothing)
            return allLayers(context.drawing);
        if (context.selection.empty() && context.pick)
            context.selection = context.pick();
        return layermarks::layersOf(context.drawing, context.selection);
    }

    const Act& m_act;
};

} // namespace

std::unique_ptr<LayerCommand> make(const char* name)
{
    const auto* const act = std::find_if(std::begin(kActs), std::end(kActs),
        [name](const Act& candidate) { return std::strcmp(candidate.name, name) == 0; });
    Q_ASSERT(act != std::end(kActs));
    return std::make_unique<QuickCommand>(*act);
}

} // namespace quickcommands
