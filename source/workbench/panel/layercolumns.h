#pragma once

#include "layersnapshot.h"

#include <QString>

/// A layer of a snapshot.
struct LayerRow
{
    const LayerSnapshot& layers;
    int at = 0;

    const drawing::Layer& layer() const { return layers[at]; }
    const drawing::LayerProperties& properties() const { return layer().properties; }
};

/// A column of the layer panel: what it shows of a layer, what it sorts by, and how a text becomes
/// its value.
struct LayerColumn
{
    enum Kind { Mark, Flag, Text, Color, Linetype, Lineweight, Transparency, Count };
    /// What its cells change.
    enum Scope {
        Nothing,
        OfLayer,
        OfViewport,       ///< Overrides a property in the current viewport.
        FrozenInViewport, ///< The list of frozen layers of the current viewport.
    };
    using Properties = drawing::LayerProperties;

    const char* key;   ///< In settings.
    const char* title; ///< Of the column, and of what is changed in it.
    Kind kind;
    Scope scope;
    int width;                                       ///< Pixels at first.
    const char* words[2] = {};                       ///< Of a flag: cleared, set.
    const char* icons[2] = {};                       ///< The same under ":/workbench/".
    QString (*text)(const LayerRow& row) = nullptr;  ///< Null: the word of a flag.
    qint64 (*number)(const LayerRow& row) = nullptr; ///< What sorts it; null: the text.
    /// Makes a text, as cells show it or people type it, the value; false when it is none.
    bool (*set)(const QString& text, Properties& properties) = nullptr;
    int property = 0; ///< Its bit among those a viewport can override.

    QString displayTitle() const;
    QString displayText(const LayerRow& row) const;
    QString word(bool isSet) const;
    bool isFlag() const { return kind == Flag; }
    bool isOfViewport() const { return scope == OfViewport || scope == FrozenInViewport; }
    /// What people may write for a flag.
    bool readFlag(const QString& typed, bool& value) const;
};

/// The columns in their order at first.
class LayerColumns
{
public:
    enum Which { Status, Name, On, Frozen, Locked, Plotted };

    static int count();
    static const LayerColumn& at(int column);
    /// -1 for no column.
    static int find(const QString& key);
};

/// The colour as cells show it: a name, a number, or three numbers.
QString layerColorText(const drawing::LayerProperties& properties);
