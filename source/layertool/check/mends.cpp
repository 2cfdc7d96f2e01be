#include "mends.h"

#include "drawing.h"
#include "layerfields.h"
#include "namerule.h"
#include "options.h"
#include "renameresults.h"
#include "texts.h"
#include "translation/layertranslation.h"

#include <QSet>

#include <algorithm>

namespace layertool {

namespace {

using drawing::Drawing;
using Findings = std::vector<Finding>;

Expected<int> mendNames(
    Drawing& drawing, const LayerRules&, const Findings& findings, Result& result)
{
    std::vector<drawing::LayerRename> renamings;
    renamings.reserve(findings.size());
    for (const Finding& finding : findings)
        renamings.push_back({finding.id, finding.expected});
    // According to the standard both layers are one, so an existing layer with that name takes over
    // the other's contents.
    int count = 0;
    for (const drawing::LayerRenamed& one :
        drawing::renameLayers(drawing, renamings, drawing::NameClash::Merge)) {
        count += one.outcome == drawing::LayerRenamed::Outcome::Refused ? 0 : 1;
        noteRefusal(result, one);
    }
    return count;
}

/// Creates required layers that the standard describes; their properties are set later.
Expected<int> mendMissing(
    Drawing& drawing, const LayerRules& rules, const Findings& findings, Result& result)
{
    int count = 0;
    for (const Finding& finding : findings) {
        const auto standard = rules.layers.constFind(vnsi::foldedName(finding.layer));
        if (standard == rules.layers.constEnd())
            continue;
        drawing::LayerProperties properties;
        properties.name = standard->name;
        const auto added = drawing.addLayer(properties);
        count += added ? 1 : 0;
        if (!added)
            result.note("layer-refused", added.error().text);
    }
    return count;
}

Expected<int> mendProperties(
    Drawing& drawing, const LayerRules& rules, const Findings& findings, Result& result)
{
    int count = 0;
    for (const Finding& finding : findings) {
        const auto& fields = layerFields();
        const auto field = std::find_if(fields.begin(), fields.end(),
            [&](const LayerField& known) { return finding.property == QLatin1String(known.id); });
        const StandardLayer standard = rules.layers.value(vnsi::foldedName(finding.layer));
        if (finding.property == QLatin1String("linetype") && standard.target &&
            standard.target->linetypeDefinition) {
            if (const auto added = drawing.addLinetype(*standard.target->linetypeDefinition);
                !added)
                return tl::make_unexpected(added.error());
        }
        drawing::LayerProperties properties = drawing.layer(finding.id)->properties;
        field->set(properties, finding.expected);
        const auto done = drawing.setLayerProperties(finding.id, properties);
        count += done ? 1 : 0;
        if (!done)
            result.note("property-refused", done.error().text);
    }
    return count;
}

constexpr struct
{
    const char* property;
    bool drawing::TranslationOptions::*option;
} kByLayerOptions[] = {
    {"color", &drawing::TranslationOptions::colorByLayer},
    {"linetype", &drawing::TranslationOptions::linetypeByLayer},
    {"lineweight", &drawing::TranslationOptions::lineweightByLayer},
    {"transparency", &drawing::TranslationOptions::transparencyByLayer},
};

/// Maps layers to themselves. This leaves the layers unchanged and sets the properties of their
/// entities to ByLayer.
Expected<int> mendOwn(Drawing& drawing, const LayerRules&, const Findings& findings, Result& result)
{
    const std::vector<drawing::TargetLayer> targets = drawing::targetLayers(drawing);
    int count = 0;
    for (const auto& row : kByLayerOptions) {
        QSet<QString> concerned;
        for (const Finding& finding : findings) {
            if (finding.property == QLatin1String(row.property))
                concerned.insert(finding.layer);
        }
        std::vector<drawing::LayerMapping> mappings;
        for (const drawing::TargetLayer& target : targets) {
            if (concerned.contains(target.name))
                mappings.push_back({target.name, target});
        }
        if (mappings.empty())
            continue;
        drawing::TranslationOptions options;
        options.inBlocks = true;
        options.*row.option = true;
        const auto report = drawing::translateLayers(drawing, mappings, options);
        if (!report)
            return tl::make_unexpected(report.error());
        for (const drawing::MappingResult& mapping : report->mappings) {
            if (!mapping.isApplied())
                result.note("by-layer-refused", mapping.cause);
        }
        result.notes("by-layer", report->notices);
        count += report->appliedCount();
    }
    return count;
}

Expected<int> mendUnused(Drawing& drawing, const LayerRules&, const Findings& findings, Result&)
{
    std::vector<drawing::LayerId> unused;
    for (const Finding& finding : findings)
        unused.push_back(finding.id);
    if (unused.empty())
        return 0;
    if (const auto done = drawing.deleteLayers(unused); !done)
        return tl::make_unexpected(done.error());
    return static_cast<int>(unused.size());
}

// The order matters: a layer must have its standard name before its properties are compared.
constexpr struct
{
    const char* rules; ///< The ids of the rules, separated by blanks.
    const char* count; ///< The key of its count in the report.
    Expected<int> (*mend)(
        Drawing& drawing, const LayerRules& rules, const Findings& findings, Result& result);
} kMends[] = {
    {"layer-renamed", "renamed", mendNames},
    {"layer-required", "layers-made", mendMissing},
    {"layer-property", "properties-set", mendProperties},
    {"entity-color entity-linetype entity-lineweight entity-transparency", "layers-by-layer",
        mendOwn},
    {"layer-unused", "layers-removed", mendUnused},
};

} // namespace

bool isMended(const Rule& rule)
{
    return std::any_of(std::begin(kMends), std::end(kMends),
        [&rule](const auto& row) { return wordsOf(row.rules).contains(QLatin1String(rule.id)); });
}

Expected<void> mendDrawing(Drawing& drawing, const LayerRules& rules, Result& result)
{
    for (const auto& row : kMends) {
        const QStringList concerned = wordsOf(row.rules);
        Findings findings = checkDrawing(drawing, rules);
        findings.erase(std::remove_if(findings.begin(), findings.end(),
                           [&concerned](const Finding& finding) {
                               return !concerned.contains(QLatin1String(finding.rule));
                           }),
            findings.end());
        const auto count = row.mend(drawing, rules, findings, result);
        if (!count)
            return tl::make_unexpected(count.error());
        result.counts.insert(QLatin1String(row.count), *count);
    }
    return {};
}

} // namespace layertool
