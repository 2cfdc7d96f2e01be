#pragma once

#include "layerrecord.h"
#include "layers/layer.h"

#include <functional>
#include <initializer_list>
#include <vector>

namespace drawing {
class Drawing;
}

/// Converts layers to the records that dialogs work on, and back.
///
/// A command states once which members its dialog reads, and makes its trees accordingly:
///
///     const layerrecords::Provider kRecords({key::kName, key::kOff, key::kUsed});
///     tree->SetDataJ(key::kList, kRecords.list(drawing));
///
/// The keys are those of `layerkey`; `kColor` stands for both parts of a colour. In addition every
/// record keeps the layer's id, with which `idOf` finds the layer even when its name has changed.
namespace layerrecords {

/// Decides which layers get a record.
using Filter = std::function<bool(const drawing::Layer& layer)>;

struct Field;

/// Makes and reads records with certain members.
class Provider
{
public:
    explicit Provider(std::initializer_list<const char*> keys);
    /// Provides everything that drawings know about layers, for dialogs that edit it.
    static const Provider& full();

    vnsi::VnJsonPtr make(const drawing::Layer& layer, bool current) const;
    /// Updates a record from the drawing. "Selected" stays as it is.
    void refresh(vnsi::LayerRecord record, const drawing::Layer& layer, bool current) const;
    /// The records of the layers that pass the filter, or of all layers without one. They are
    /// sorted by name, with numbers in names compared by value.
    vnsi::VnJsonPtr list(const drawing::Drawing& drawing, const Filter& passes = {}) const;
    /// A tree with `list` under "LayerList".
    vnsi::VnJsonPtr tree(const drawing::Drawing& drawing, const Filter& passes = {}) const;
    /// The properties in a record. Properties without a key are taken from `base`.
    drawing::LayerProperties read(
        const vnsi::VnJsonPtr& record, const drawing::LayerProperties& base) const;
    /// Reads one member at a time; members are numbered from 0.
    int fieldCount() const { return static_cast<int>(m_fields.size()); }
    void readField(
        int field, const vnsi::VnJsonPtr& record, drawing::LayerProperties& properties) const;

private:
    void write(vnsi::LayerRecord& record, const drawing::Layer& layer, bool current) const;

    std::vector<const Field*> m_fields;
};

/// The layer that a record was made from; `None` for a record that has none yet.
drawing::LayerId idOf(const vnsi::VnJsonPtr& record);
void setId(const vnsi::VnJsonPtr& record, drawing::LayerId id);
QString nameOf(const vnsi::VnJsonPtr& record);
/// Whether a dialog marked the record as modified, by a bool or by the number 1.
bool isModified(const vnsi::VnJsonPtr& record);

} // namespace layerrecords
