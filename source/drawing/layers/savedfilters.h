#pragma once

#include "file/drawingfile.h"
#include "file/error.h"
#include "layerfilter.h"
#include "layerrecords.h"

#include <vector>

namespace drawing {

/// The position of a filter of the newer kind.
struct FilterPlace
{
    quint64 dictionary = 0;
    QByteArray key;
    quint64 record = 0;
    quint64 parent = 0; ///< The record of the parent filter; 0 at the top level.
};

/// The filters of the newer kind in the order of their dictionaries; nested filters follow their
/// parent. A filter is stored in the extension dictionary of its parent, either directly or in a
/// dictionary inside it.
std::vector<FilterPlace> filterPlaces(const DrawingFile& file);
/// The handle of the filter list of older programs; 0 when there is none.
quint64 oldFilterList(const DrawingFile& file);

/// The layer filters of a drawing. Everything in a record besides name, expression and layers is
/// kept. Older programs use a list of their own, which repeats the property filters of the top
/// level; when such a filter is changed or removed, its entry in that list is changed or removed as
/// well.
class SavedFilters
{
public:
    SavedFilters(DrawingFile& file, const LayerTable& layers, LayerRecords& records)
        : m_file(file),
          m_layers(layers),
          m_records(records)
    {
    }

    /// The filters in the order of `filterPlaces`, followed by those that only the older list
    /// contains.
    std::vector<LayerFilter> read() const;
    Expected<quint64> add(const LayerFilter& filter);
    Expected<void> change(const LayerFilter& filter);
    Expected<void> remove(quint64 record);

private:
    LayerFilter read(const FilterPlace& place) const;
    LayerFilter readOld(quint64 record) const;
    Expected<LayerFilter> known(quint64 record) const;
    Expected<void> checkName(const LayerFilter& filter) const;
    QByteArray newData(const LayerFilter& filter);
    quint64 madeDictionary(quint64 parent);
    void putText(TagList& tags, int code, const QString& text) const;
    void putLayers(TagList& tags, const std::vector<LayerId>& layers);
    /// Changes a filter in the older list, or removes it when `after` is null.
    void changeOld(const LayerFilter& before, const LayerFilter* after);

    DrawingFile& m_file;
    const LayerTable& m_layers;
    LayerRecords& m_records;
};

} // namespace drawing
