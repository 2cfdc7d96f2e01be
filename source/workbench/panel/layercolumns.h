#pragma once

#include "layersnapshot.h"

#include <QString>

/// A layer in a snapshot.
struct LayerRow
{
    const LayerSnapshot& layers;
    int at = 0;

    const drawing::Layer& layer() const { return layers[at]; }
    const drawing::LayerProperties& properties() const { return layer().properties; }
};

/// A column of the layer panel: what it shows of a layer, how it is sorted, and how a text is
/// converted to its value.
struct LayerColumn
{
    enum Kind { Mark, Flag, Text, Color, Linetype, Lineweight, Transparency, Count };
    /// What editing a cell changes.
    enum Scope {
        Nothing,
        OfLayer,
        OfViewport,       ///< Overrides a property in the current viewport.
        FrozenInViewport, ///< Changes the list of layers frozen in the current viewport.
    };
    using Properties = drawing::LayerProperties;

    const char* key;   ///< The name in the settings.
    const char* title; ///< The title of the column and of edits in it.
    Kind kind;
    Scope scope;
    int width;                 ///< The initial width in pixels.
    const char* words[2] = {}; ///< For a flag, the words for false and true.
    const char* icons[2] = {}; ///< The icons for false and true, under ":/workbench/".
    QString (*text)(const LayerRow& row) = nullptr;  ///< Null to show the word of a flag.
    qint64 (*number)(const LayerRow& row) = nullptr; ///< The sort key; null to sort by text.
    /// Sets the value from a text as cells show it or people type it. Returns false when the text
    /// is invalid.
    bool (*set)(const QString& text, Properties& properties) = nullptr;
    int property = 0; ///< The property's bit if viewports can override it.

    QString displayTitle() const;
    QString displayText(const LayerRow& row) const;
    QString word(bool isSet) const;
    bool isFlag() const { return kind == Flag; }
    bool isOfViewport() const { return scope == OfViewport || scope == FrozenInViewport; }
    /// Reads what people may type for a flag.
    bool readFlag(const QString& typed, bool& value) const;
};

/// The columns in their initial order.
class LayerColumns
{
public:
    enum Which { Status, Name, On, Frozen, Locked, Plotted };

    static int count();
    static const LayerColumn& at(int column);
    /// The index of the column with this key; -1 when there is none.
    static int find(const QString& key);
};

/// The colour as cells show it: a name, an index, or three numbers.
QString layerColorText(const drawing::LayerProperties& properties);
