#pragma once

#include "layerrecord.h"
#include "layers/layer.h"

#include <functional>
#include <initializer_list>
#include <vector>

namespace drawing {
class Drawing;
}

/// Layers as the records that dialogs work on, and back.
///
/// A command says once which members its dialog reads, and gets its trees from there:
///
///     const layerrecords::Provider kRecords({key::kName, key::kOff, key::kUsed});
///     tree->SetDataJ(key::kList, kRecords.list(drawing));
///
/// The keys are those of `layerkey`; `kColor` stands for both parts of a colour. Besides them every
/// record keeps the layer's id, by which `idOf` finds the layer again whatever it is called by
/// then.
namespace layerrecords {

/// Which layers get a record.
using Filter = std::function<bool(const drawing::Layer& layer)>;

struct Field;

/// Makes and reads records with certain members.
class Provider
{
public:
    explicit Provider(std::initializer_list<const char*> keys);
    /// All that drawings know of layers, for dialogs that edit it.
    static const Provider& full();

    vnsi::VnJsonPtr make(const drawing::Layer& layer, bool current) const;
    /// Writes what the drawing says now into a record; "Selected" stays as it is.
    void refresh(vnsi::LayerRecord record, const drawing::Layer& layer, bool current) const;
    /// The records of the layers that pass, of all without a filter, in the order people look names
    /// up: by name, numbers by their value.
    vnsi::VnJsonPtr list(const drawing::Drawing& drawing, const Filter& passes = {}) const;
    /// A tree with `list` under "LayerList".
    vnsi::VnJsonPtr tree(const drawing::Drawing& drawing, const Filter& passes = {}) const;
    /// The properties in a record; those that the keys leave out are taken from `base`.
    drawing::LayerProperties read(
        const vnsi::VnJsonPtr& record, const drawing::LayerProperties& base) const;
    /// The same for one member at a time, numbered from 0.
    int fieldCount() const { return static_cast<int>(m_fields.size()); }
    void readField(
        int field, const vnsi::VnJsonPtr& record, drawing::LayerProperties& properties) const;

private:
    void write(vnsi::LayerRecord& record, const drawing::Layer& layer, bool current) const;

    std::vector<const Field*> m_fields;
};

/// The layer a record was made of; `None` for a record that has none yet.
drawing::LayerId idOf(const vnsi::VnJsonPtr& record);
void setId(const vnsi::VnJsonPtr& record, drawing::LayerId id);
QString nameOf(const vnsi::VnJsonPtr& record);
/// Whether a dialog marked the record, as a flag or as the number 1.
bool isModified(const vnsi::VnJsonPtr& record);

} // namespace layerrecords
