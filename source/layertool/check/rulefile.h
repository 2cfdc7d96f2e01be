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

/// Names by wildcard patterns.
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

/// How much a finding matters.
enum class Level : quint8 { Off, Note, Warning, Error };

/// "off", "note", "warning" or "error": the words of rule files and of SARIF. Nothing for others.
std::optional<Level> levelOf(const QString& word);
const char* levelWord(Level level);

/// A layer that a standard describes: its name, and those of its properties it speaks of.
struct StandardLayer
{
    QString name;
    QMap<QString, QString> properties; ///< By the ids of `layerFields`, as these write them.
    /// The whole layer, where it came from a drawing: what a missing one is made of.
    std::optional<drawing::TargetLayer> target;
};

/// What drawings are held against: a standard drawing, a rule file, or both.
struct LayerRules
{
    QString name;
    NamePatterns exempt; ///< Names that rules on names pass over.
    QStringList required;
    NamePatterns allowed;
    NamePatterns forbidden;
    std::optional<NamingScheme> naming;
    QHash<QString, StandardLayer> layers; ///< By folded name.
    QHash<QString, QString> renames;      ///< New names by folded old ones.
    QHash<QString, Level> levels;         ///< Of rules whose level the file changes.
};

/// Reads the layers of a standard drawing into `rules`: each must look so where a drawing has it.
drawing::Expected<void> readStandardDrawing(const QString& path, LayerRules& rules);
/// Whether a standard is a rule file, going by its name; others are drawings.
bool isRuleFile(const QString& path);
/// Reads a rule file (JSON, see docs/layer-rules.schema.json). Refuses keys and values that make no
/// sense, naming them.
drawing::Expected<void> readRuleFile(const QString& path, LayerRules& rules);
/// Reads standards, drawings and rule files, into one set of rules. Layer 0 and Defpoints, which no
/// drawing can do without, are passed over by rules on names.
drawing::Expected<LayerRules> readRules(const QStringList& paths);
/// The files that a rule file builds on, and those that they do; empty for other files.
QStringList rulesBehind(const QString& path);

} // namespace layertool
