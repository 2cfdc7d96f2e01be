#include "verbs.h"

#include "drawing.h"
#include "namerule.h"
#include "states/layerstate.h"
#include "states/layerstatefile.h"
#include "texts.h"

#include <QDir>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::LayerState;

constexpr OptionRow kOptions[] = {
    {"state", OptionKind::Text,
        QT_TRANSLATE_NOOP(
            "layertool", "图层状态的名称，不分大小写；可多次给出。export 和 import 不给时取全部。"),
        "", true},
    {"file", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool", "import：从哪个图层状态文件（*.las）输入。")},
    {"turn-others-off", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "restore：关闭图层状态中没有的图层。")},
};

/// Lists, exports, imports, restores, saves and deletes layer states.
class StatesVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    Expected<void> write(
        Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result) override;
    std::vector<Column> columns() const override;

private:
    using Action = Expected<void> (StatesVerb::*)(Drawing& drawing, Result& result);
    struct ActionRow
    {
        const char* name;
        Action action;
        bool needsState;
    };
    static const ActionRow kActions[6];

    Expected<void> list(Drawing& drawing, Result& result);
    Expected<void> exportStates(Drawing& drawing, Result& result);
    Expected<void> importStates(Drawing& drawing, Result& result);
    Expected<void> restore(Drawing& drawing, Result& result);
    Expected<void> save(Drawing& drawing, Result& result);
    Expected<void> remove(Drawing& drawing, Result& result);

    Expected<std::vector<LayerState>> chosen(const std::vector<LayerState>& all) const;
    void addRow(Result& result, const LayerState& state, const Drawing& drawing) const;

    const ActionRow* m_action = nullptr;
    QStringList m_names;
    QString m_file;
    bool m_turnsOthersOff = false;
    std::vector<LayerState> m_exported; ///< For the current drawing.
};

const StatesVerb::ActionRow StatesVerb::kActions[6] = {
    {"list", &StatesVerb::list, false},
    {"export", &StatesVerb::exportStates, false},
    {"import", &StatesVerb::importStates, false},
    {"restore", &StatesVerb::restore, true},
    {"save", &StatesVerb::save, true},
    {"delete", &StatesVerb::remove, true},
};

Expected<void> StatesVerb::prepare(const Arguments& arguments)
{
    for (const ActionRow& row : kActions) {
        if (arguments.action == QLatin1String(row.name))
            m_action = &row;
    }
    m_names = arguments.values("state");
    m_file = arguments.value("file");
    m_turnsOthersOff = arguments.isSet("turn-others-off");
    const QString word = arguments.action;
    if (m_action->needsState && m_names.isEmpty())
        return tl::make_unexpected(Error{Texts::tr("%1 要用 --state 给出图层状态。").arg(word)});
    if (m_names.size() > 1 && (word == QLatin1String("save") || word == QLatin1String("restore")))
        return tl::make_unexpected(Error{Texts::tr("%1 只能给出一个图层状态。").arg(word)});
    if (word == QLatin1String("import") && m_file.isEmpty())
        return tl::make_unexpected(Error{Texts::tr("缺少 --file：从哪个文件输入？")});
    if (word == QLatin1String("export") && arguments.isSet("in-place"))
        return tl::make_unexpected(Error{Texts::tr("export 写到 --out 所指的文件夹。")});
    return {};
}

std::vector<Column> StatesVerb::columns() const
{
    return {{"state", QT_TRANSLATE_NOOP("layertool", "图层状态")},
        {"layers", QT_TRANSLATE_NOOP("layertool", "图层数")},
        {"mask", QT_TRANSLATE_NOOP("layertool", "恢复掩码")},
        {"current-layer", QT_TRANSLATE_NOOP("layertool", "当前图层")},
        {"same-as-drawing", QT_TRANSLATE_NOOP("layertool", "与图形相同")},
        {"description", QT_TRANSLATE_NOOP("layertool", "说明")}};
}

void StatesVerb::addRow(Result& result, const LayerState& state, const Drawing& drawing) const
{
    result.data.append(QJsonObject{{QStringLiteral("state"), state.name},
        {QStringLiteral("layers"), static_cast<int>(state.layers.size())},
        {QStringLiteral("mask"), state.mask}, {QStringLiteral("current-layer"), state.currentLayer},
        {QStringLiteral("same-as-drawing"), drawing::isSameAsDrawing(state, drawing)},
        {QStringLiteral("description"), state.description}});
    result.counts.insert(QStringLiteral("states"), result.data.size());
}

/// The chosen states, or all of them. Refuses a name that no state has.
Expected<std::vector<LayerState>> StatesVerb::chosen(const std::vector<LayerState>& all) const
{
    if (m_names.isEmpty())
        return all;
    std::vector<LayerState> some;
    for (const QString& name : m_names) {
        const auto found = std::find_if(all.begin(), all.end(),
            [&name](const LayerState& state) { return vnsi::isSameName(state.name, name); });
        if (found == all.end())
            return tl::make_unexpected(Error{Texts::tr("没有名为“%1”的图层状态。").arg(name)});
        some.push_back(*found);
    }
    return some;
}

Expected<void> StatesVerb::list(Drawing& drawing, Result& result)
{
    for (const LayerState& state : drawing.layerStates())
        addRow(result, state, drawing);
    return {};
}

Expected<void> StatesVerb::exportStates(Drawing& drawing, Result& result)
{
    auto states = chosen(drawing.layerStates());
    if (!states)
        return tl::make_unexpected(states.error());
    m_exported = std::move(*states);
    for (const LayerState& state : m_exported)
        addRow(result, state, drawing);
    return {};
}

Expected<void> StatesVerb::importStates(Drawing& drawing, Result& result)
{
    auto file = drawing::readLayerStateFile(m_file, drawing.codec());
    if (!file)
        return tl::make_unexpected(file.error());
    result.notes("state-file", file->notices);
    auto states = chosen(file->states);
    if (!states)
        return tl::make_unexpected(states.error());
    for (LayerState& state : *states) {
        const QStringList unknown = drawing::dropUnknownLayers(state, drawing);
        if (!unknown.isEmpty())
            result.note(
                "state-layers-unknown", Texts::tr("图层状态“%1”中的图层“%2”图形没有，已略去。")
                                            .arg(state.name, unknown.join(Texts::tr("”、“"))));
        addRow(result, state, drawing);
    }
    return drawing.putLayerStates(*states);
}

Expected<void> StatesVerb::restore(Drawing& drawing, Result& result)
{
    const auto states = chosen(drawing.layerStates());
    if (!states)
        return tl::make_unexpected(states.error());
    const LayerState& state = states->front();
    drawing::LayerStateRestore how;
    how.mask = state.mask;
    how.turnOthersOff = m_turnsOthersOff;
    result.notes("state-restored", drawing::restoreLayerState(drawing, state, how));
    addRow(result, state, drawing);
    return {};
}

Expected<void> StatesVerb::save(Drawing& drawing, Result& result)
{
    const LayerState state = drawing::captureLayerState(drawing, m_names.front());
    addRow(result, state, drawing);
    return drawing.putLayerStates({state});
}

Expected<void> StatesVerb::remove(Drawing& drawing, Result& result)
{
    const auto states = chosen(drawing.layerStates());
    if (!states)
        return tl::make_unexpected(states.error());
    for (const LayerState& state : *states)
        addRow(result, state, drawing);
    return drawing.removeLayerStates(m_names);
}

Expected<void> StatesVerb::run(Drawing& drawing, const Job&, Result& result)
{
    return (this->*m_action->action)(drawing, result);
}

Expected<void> StatesVerb::write(
    Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result)
{
    if (m_action->action != &StatesVerb::exportStates)
        return Verb::write(drawing, job, progress, result);
    const QFileInfo output(job.output);
    const QString staged = QDir(job.staging).filePath(QStringLiteral("%1.las").arg(job.number));
    result.output = output.dir().filePath(output.completeBaseName() + QStringLiteral(".las"));
    result.staged = {{staged, result.output}};
    return drawing::writeLayerStateFile(staged, m_exported);
}

} // namespace

VerbRow statesVerb()
{
    VerbRow row{"states",
        QT_TRANSLATE_NOOP("layertool", "图层状态：列出、输出、输入、恢复、保存、删除。"),
        OptionRows::of(kOptions), "text csv json", true, makeVerb<StatesVerb>};
    row.actions = "list export import restore save delete";
    row.readingActions = "list";
    return row;
}

} // namespace layertool
