#include "rulefile.h"

#include "filecause.h"
#include "layerfields.h"
#include "namerule.h"
#include "rules.h"
#include "standardsfile.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace layertool {

namespace {

using drawing::Error;
using drawing::Expected;

constexpr const char* kLevelWords[] = {"off", "note", "warning", "error"};

/// How one key of a rule file is read into the rules.
struct KeyRow
{
    const char* key;
    QJsonValue::Type type;
    Expected<void> (*read)(const QJsonValue& value, LayerRules& rules);
};

tl::unexpected<Error> refuse(const QString& text)
{
    return tl::make_unexpected(Error{text});
}

Expected<void> readNothing(const QJsonValue&, LayerRules&)
{
    return {};
}

Expected<void> readName(const QJsonValue& value, LayerRules& rules)
{
    rules.name = value.toString();
    return {};
}

template <NamePatterns LayerRules::*member>
Expected<void> readPatterns(const QJsonValue& value, LayerRules& rules)
{
    for (const QJsonValue pattern : value.toArray())
        (rules.*member).add(pattern.toString());
    return {};
}

Expected<void> readRequired(const QJsonValue& value, LayerRules& rules)
{
    for (const QJsonValue pattern : value.toArray())
        rules.required += pattern.toString();
    return {};
}

Expected<void> readNaming(const QJsonValue& value, LayerRules& rules)
{
    auto scheme = NamingScheme::read(value.toObject());
    if (!scheme)
        return tl::make_unexpected(scheme.error());
    rules.naming = std::move(*scheme);
    return {};
}

Expected<void> readLayer(const QJsonObject& json, LayerRules& rules)
{
    StandardLayer layer;
    layer.name = json.value(QLatin1String("name")).toString();
    if (layer.name.isEmpty())
        return refuse(Texts::tr("layers 中有一个图层没有 name。"));
    for (const QString& key : json.keys()) {
        if (key == QLatin1String("name"))
            continue;
        const auto& fields = layerFields();
        const auto field = std::find_if(fields.begin(), fields.end(),
            [&key](const LayerField& known) { return key == QLatin1String(known.id); });
        if (field == fields.end())
            return refuse(Texts::tr("图层“%1”没有名为“%2”的特性。").arg(layer.name, key));
        // The value is normalised by the field itself so that values can be compared.
        drawing::LayerProperties properties;
        if (!field->set(properties, json.value(key).toVariant().toString()))
            return refuse(Texts::tr("图层“%1”的 %2 不是可用的值：“%3”。")
                              .arg(layer.name, key, json.value(key).toVariant().toString()));
        layer.properties.insert(key, field->get(properties).toString());
    }
    rules.layers.insert(vnsi::foldedName(layer.name), layer);
    return {};
}

Expected<void> readLayers(const QJsonValue& value, LayerRules& rules)
{
    for (const QJsonValue layer : value.toArray()) {
        if (auto read = readLayer(layer.toObject(), rules); !read)
            return read;
    }
    return {};
}

Expected<void> readRenames(const QJsonValue& value, LayerRules& rules)
{
    const QJsonObject json = value.toObject();
    for (auto it = json.begin(); it != json.end(); ++it)
        rules.renames.insert(vnsi::foldedName(it.key()), it.value().toString());
    return {};
}

Expected<void> readLevels(const QJsonValue& value, LayerRules& rules)
{
    const QJsonObject json = value.toObject();
    for (auto it = json.begin(); it != json.end(); ++it) {
        if (!findRule(it.key()))
            return refuse(Texts::tr("没有名为“%1”的规则。").arg(it.key()));
        const auto level = levelOf(it.value().toString());
        if (!level)
            return refuse(
                Texts::tr("规则“%1”的级别应为 off、note、warning 或 error。").arg(it.key()));
        rules.levels.insert(it.key(), *level);
    }
    return {};
}

constexpr KeyRow kKeys[] = {
    {"$schema", QJsonValue::String, readNothing},
    {"source", QJsonValue::String, readNothing},
    // A text or a list, handled before everything else.
    {"extends", QJsonValue::Undefined, readNothing},
    {"name", QJsonValue::String, readName},
    {"exempt", QJsonValue::Array, readPatterns<&LayerRules::exempt>},
    {"required", QJsonValue::Array, readRequired},
    {"allowed", QJsonValue::Array, readPatterns<&LayerRules::allowed>},
    {"forbidden", QJsonValue::Array, readPatterns<&LayerRules::forbidden>},
    {"naming", QJsonValue::Object, readNaming},
    {"layers", QJsonValue::Array, readLayers},
    {"renames", QJsonValue::Object, readRenames},
    {"rules", QJsonValue::Object, readLevels},
};

/// Whether a list contains only texts; lists of objects are checked elsewhere.
bool holdsTexts(const QJsonValue& value)
{
    const QJsonArray list = value.toArray();
    return std::all_of(list.begin(), list.end(),
        [](const QJsonValue& one) { return one.isObject() || !one.toString().isEmpty(); });
}

Expected<void> readKeys(const QJsonObject& json, LayerRules& rules)
{
    for (auto it = json.begin(); it != json.end(); ++it) {
        const auto row = std::find_if(std::begin(kKeys), std::end(kKeys),
            [&it](const KeyRow& known) { return it.key() == QLatin1String(known.key); });
        if (row == std::end(kKeys))
            return refuse(Texts::tr("没有名为“%1”的键。").arg(it.key()));
        if ((row->type != QJsonValue::Undefined && it.value().type() != row->type) ||
            !holdsTexts(it.value()))
            return refuse(Texts::tr("“%1”的值不是它应有的种类。").arg(it.key()));
        if (auto read = row->read(it.value(), rules); !read)
            return read;
    }
    return {};
}

Expected<QJsonObject> jsonOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(Texts::tr("无法读取规则文件“%1”：%2。").arg(path, causeOf(file)));
    QJsonParseError fault;
    const QByteArray bytes = file.readAll();
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &fault);
    if (!document.isObject())
        return refuse(Texts::tr("规则文件“%1”的第 %2 行不是 JSON：%3。")
                          .arg(path)
                          .arg(bytes.left(fault.offset).count('\n') + 1)
                          .arg(fault.errorString()));
    return document.object();
}

/// The one or several files that a rule file extends, given relative to its folder.
QStringList basesOf(const QString& path, const QJsonValue& value)
{
    QStringList bases;
    const QJsonArray names = value.isString() ? QJsonArray{value} : value.toArray();
    for (const QJsonValue& name : names)
        bases += QFileInfo(path).dir().filePath(name.toString());
    return bases;
}

/// Reads a file after those that it extends. `readers` are the files that led to it.
Expected<void> readChain(const QString& path, const QStringList& readers, LayerRules& rules)
{
    const QString place = QFileInfo(path).absoluteFilePath();
    if (readers.contains(QDir::cleanPath(place)))
        return refuse(Texts::tr("规则文件“%1”的 extends 又回到它自己。").arg(path));
    const auto json = jsonOf(path);
    if (!json)
        return tl::make_unexpected(json.error());
    for (const QString& base : basesOf(path, json->value(QLatin1String("extends")))) {
        if (auto read = readChain(base, readers + QStringList{QDir::cleanPath(place)}, rules);
            !read)
            return read;
    }
    if (const auto read = readKeys(*json, rules); !read)
        return refuse(Texts::tr("规则文件“%1”：%2").arg(path, read.error().text));
    return {};
}

} // namespace

void NamePatterns::add(const QString& pattern)
{
    m_texts += pattern;
    m_patterns.push_back(std::make_shared<wildcard::WildcardPattern>(pattern.toStdWString(), true));
}

bool NamePatterns::matches(const QString& name) const
{
    const std::wstring wide = name.toStdWString();
    return std::any_of(m_patterns.begin(), m_patterns.end(),
        [&wide](const auto& pattern) { return pattern->matches(wide); });
}

bool isRuleFile(const QString& path)
{
    return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

std::optional<Level> levelOf(const QString& word)
{
    for (const Level level : {Level::Off, Level::Note, Level::Warning, Level::Error}) {
        if (word == QLatin1String(levelWord(level)))
            return level;
    }
    return std::nullopt;
}

const char* levelWord(Level level)
{
    return kLevelWords[static_cast<size_t>(level)];
}

Expected<void> readStandardDrawing(const QString& path, LayerRules& rules)
{
    const auto standard = drawing::readStandard(path);
    if (!standard)
        return tl::make_unexpected(standard.error());
    for (const drawing::TargetLayer& target : standard->layers) {
        drawing::LayerProperties properties;
        properties.colorIndex = target.colorIndex;
        properties.trueColor = target.trueColor;
        properties.linetype = target.linetype;
        properties.lineweight = target.lineweight;
        properties.transparency = target.transparency;
        properties.plotted = target.plotted.value_or(true);
        StandardLayer layer{target.name, {}, target};
        for (const LayerField& field : layerFields()) {
            const QString id = QLatin1String(field.id);
            static const QStringList compared{QStringLiteral("color"), QStringLiteral("linetype"),
                QStringLiteral("lineweight"), QStringLiteral("transparency"),
                QStringLiteral("plotted")};
            if (compared.contains(id) && (target.plotted || id != QLatin1String("plotted")))
                layer.properties.insert(id, field.get(properties).toString());
        }
        rules.layers.insert(vnsi::foldedName(target.name), layer);
    }
    for (const drawing::LayerMapping& mapping : standard->mappings)
        rules.renames.insert(vnsi::foldedName(mapping.from), mapping.to.name);
    return {};
}

Expected<LayerRules> readRules(const QStringList& paths)
{
    LayerRules rules;
    for (const char* name : {"0", "Defpoints"})
        rules.exempt.add(QLatin1String(name));
    for (const QString& path : paths) {
        auto read = isRuleFile(path) ? readRuleFile(path, rules) : readStandardDrawing(path, rules);
        if (!read)
            return tl::make_unexpected(std::move(read.error()));
    }
    return rules;
}

Expected<void> readRuleFile(const QString& path, LayerRules& rules)
{
    return readChain(path, {}, rules);
}

QStringList rulesBehind(const QString& path)
{
    QStringList known{path};
    for (int i = 0; i < known.size(); ++i) {
        const auto json = isRuleFile(known.at(i)) ? jsonOf(known.at(i)) : QJsonObject();
        if (!json)
            continue; // It is refused when it is read.
        for (const QString& base : basesOf(known.at(i), json->value(QLatin1String("extends")))) {
            const QString place = QDir::cleanPath(base);
            if (!known.contains(place))
                known += place;
        }
    }
    return known.mid(1);
}

} // namespace layertool
