#pragma once

#include "file/error.h"
#include "layers/layer.h"
#include "namingscheme.h"
#include "translation/layertranslation.h"
#include "wildcardpattern.h"

#include <QHash>
#include <QJsonObject>
#include <QMap>

#include <memory>
#include <optional>

namespace layertool {

/// A set of names, given as wildcard patterns.
class NamePatterns
{
public:
    void add(const QString& pattern);
    bool isEmpty() const { return m_texts.isEmpty(); }
    bool matches(const QString& name) const;
    const QStringList& texts() const { return m_texts; }

private:
    QStringList m_texts;
    std::vector<std::shared_ptr<const wildcard::WildcardPattern>> m_patterns;
};

/// The severity of a finding.
enum class Level : quint8 { Off, Note, Warning, Error };

/// Converts "off", "note", "warning" or "error", the words of rule files and of SARIF. Returns
/// nothing for other words.
std::optional<Level> levelOf(const QString& word);
const char* levelWord(Level level);

/// A layer as a standard describes it: its name and those properties that the standard defines.
struct StandardLayer
{
    QString name;
    /// The keys are ids of `layerFields`; the values have the form that these write.
    QMap<QString, QString> properties;
    /// The whole layer when the standard is a drawing. A missing layer is created from it.
    std::optional<drawing::TargetLayer> target;
};

/// The rules that drawings are checked against, from a standard drawing, a rule file, or both.
struct LayerRules
{
    QString name;
    NamePatterns exempt; ///< Names that rules about names ignore.
    QStringList required;
    NamePatterns allowed;
    NamePatterns forbidden;
    std::optional<NamingScheme> naming;
    QHash<QString, StandardLayer> layers; ///< The keys are folded names.
    QHash<QString, QString> renames;      ///< New names; the keys are folded old names.
    QHash<QString, Level> levels;         ///< Changed levels; the keys are rules.
};

/// Reads the layers of a standard drawing into `rules`. Layers of the same names must then look
/// like them.
drawing::Expected<void> readStandardDrawing(const QString& path, LayerRules& rules);
/// Whether the name of a standard is that of a rule file; other standards are drawings.
bool isRuleFile(const QString& path);
/// Reads a rule file (JSON, see docs/layer-rules.schema.json). Refuses invalid keys and values and
/// names them.
drawing::Expected<void> readRuleFile(const QString& path, LayerRules& rules);
/// Reads several standards, drawings or rule files, into one set of rules. Rules about names ignore
/// layer 0 and Defpoints, because no drawing can do without them.
drawing::Expected<LayerRules> readRules(const QStringList& paths);
/// The files that a rule file includes, directly or indirectly; empty for other files.
QStringList rulesBehind(const QString& path);

} // namespace layertool
