#include "verbs.h"

#include "drawing.h"
#include "layerchoice.h"
#include "texts.h"

#include <algorithm>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;

constexpr OptionRow kMergeOptions[] = {
    {"into", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "合并到哪个图层；图形中没有时报为失败。")},
};

/// The common base of `merge`, `delete` and `purge`, which remove layers chosen by name.
class RemovalVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;

protected:
    /// A sentence that says why a layer stays; empty when it can be removed.
    virtual QString refusal(const Drawing& drawing, const Layer& layer) const;
    virtual Expected<void> remove(Drawing& drawing, const std::vector<LayerId>& layers) = 0;
    /// Whether all layers are meant when none is chosen.
    virtual bool takesAll() const { return false; }

    LayerChoice m_choice;

private:
    std::vector<LayerId> chosen(const Drawing& drawing) const;
};

Expected<void> RemovalVerb::prepare(const Arguments& arguments)
{
    if (auto read = m_choice.read(arguments); !read)
        return read;
    if (m_choice.isEmpty() && !takesAll())
        return tl::make_unexpected(
            Error{Texts::tr("哪些图层？用 --layer、--pattern 或 --regex 给出。")});
    return {};
}

std::vector<Column> RemovalVerb::columns() const
{
    return {{"layer", QT_TRANSLATE_NOOP("layertool", "图层")},
        {"entities", QT_TRANSLATE_NOOP("layertool", "对象")},
        {"outcome", QT_TRANSLATE_NOOP("layertool", "结果")},
        {"cause", QT_TRANSLATE_NOOP("layertool", "原因")}};
}

QString RemovalVerb::refusal(const Drawing& drawing, const Layer& layer) const
{
    if (layer.properties.name == QLatin1String("0"))
        return Texts::tr("图层 0 不能删除。");
    if (layer.id == drawing.currentLayer())
        return Texts::tr("当前图层不能删除。");
    if (layer.dependsOnReference)
        return Texts::tr("它来自外部参照。");
    return {};
}

std::vector<LayerId> RemovalVerb::chosen(const Drawing& drawing) const
{
    if (!m_choice.isEmpty())
        return m_choice.in(drawing);
    std::vector<LayerId> all;
    for (const Layer& layer : drawing.layers())
        all.push_back(layer.id);
    return all;
}

Expected<void> RemovalVerb::run(Drawing& drawing, const Job&, Result& result)
{
    for (const QString& name : m_choice.missingIn(drawing))
        result.note("no-such-layer", Texts::tr("没有名为“%1”的图层。").arg(name));
    std::vector<LayerId> going;
    qint64 entities = 0;
    for (const LayerId id : chosen(drawing)) {
        const Layer& layer = *drawing.layer(id);
        const QString cause = refusal(drawing, layer);
        // When all layers are meant, those that must stay are not worth mentioning.
        if (!cause.isEmpty() && m_choice.isEmpty())
            continue;
        result.data.append(QJsonObject{{QStringLiteral("layer"), layer.properties.name},
            {QStringLiteral("entities"), layer.entityCount},
            {QStringLiteral("outcome"),
                cause.isEmpty() ? QStringLiteral("removed") : QStringLiteral("kept")},
            {QStringLiteral("cause"), cause}});
        if (!cause.isEmpty()) {
            // A pattern may include layers that must stay, but a layer chosen by name was meant to
            // be removed.
            result.found = result.found || m_choice.names(layer.properties.name);
            result.note(
                "layer-kept", Texts::tr("图层“%1”保留：%2").arg(layer.properties.name, cause));
            continue;
        }
        going.push_back(id);
        entities += layer.entityCount;
    }
    result.counts = {{QStringLiteral("layers-removed"), static_cast<int>(going.size())},
        {QStringLiteral("entities-concerned"), static_cast<double>(entities)}};
    if (going.empty())
        return {};
    return remove(drawing, going);
}

/// Moves the contents of layers to another one and deletes the layers.
class MergeVerb : public RemovalVerb
{
public:
    Expected<void> prepare(const Arguments& arguments) override
    {
        m_target = arguments.value("into");
        if (m_target.isEmpty())
            return tl::make_unexpected(Error{Texts::tr("缺少 --into：合并到哪个图层？")});
        return RemovalVerb::prepare(arguments);
    }
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override
    {
        if (!drawing.findLayer(m_target))
            return tl::make_unexpected(
                Error{Texts::tr("没有名为“%1”的图层可以合并进去。").arg(m_target)});
        return RemovalVerb::run(drawing, job, result);
    }

protected:
    QString refusal(const Drawing& drawing, const Layer& layer) const override
    {
        if (layer.id == drawing.findLayer(m_target)->id)
            return Texts::tr("它就是合并的目标。");
        return RemovalVerb::refusal(drawing, layer);
    }
    Expected<void> remove(Drawing& drawing, const std::vector<LayerId>& layers) override
    {
        return drawing.mergeLayers(layers, drawing.findLayer(m_target)->id);
    }

private:
    QString m_target;
};

/// Deletes layers with their contents.
class DeleteVerb : public RemovalVerb
{
protected:
    Expected<void> remove(Drawing& drawing, const std::vector<LayerId>& layers) override
    {
        return drawing.deleteLayers(layers);
    }
};

/// Deletes empty layers.
class PurgeVerb : public RemovalVerb
{
protected:
    bool takesAll() const override { return true; }
    QString refusal(const Drawing& drawing, const Layer& layer) const override
    {
        if (layer.used())
            return Texts::tr("其中有 %1 个对象。").arg(layer.entityCount);
        if (drawing::isNeverPlotted(layer.properties.name))
            return Texts::tr("它属于图形格式本身。");
        return RemovalVerb::refusal(drawing, layer);
    }
    Expected<void> remove(Drawing& drawing, const std::vector<LayerId>& layers) override
    {
        return drawing.deleteLayers(layers);
    }
};

} // namespace

VerbRow mergeVerb()
{
    static const std::vector<OptionRow> options =
        joined(LayerChoice::options(), OptionRows::of(kMergeOptions));
    return {"merge",
        QT_TRANSLATE_NOOP("layertool", "把一些图层上的一切移到另一个图层，并删除它们。"),
        OptionRows::of(options), "text csv json", true, makeVerb<MergeVerb>};
}

VerbRow deleteVerb()
{
    return {"delete", QT_TRANSLATE_NOOP("layertool", "删除图层连同其上的对象，块中的也在内。"),
        LayerChoice::options(), "text csv json", true, makeVerb<DeleteVerb>};
}

VerbRow purgeVerb()
{
    return {"purge",
        QT_TRANSLATE_NOOP("layertool", "清除没有对象的图层；不给出图层时清除全部这样的图层。"),
        LayerChoice::options(), "text csv json", true, makeVerb<PurgeVerb>};
}

} // namespace layertool
