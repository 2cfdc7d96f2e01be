#pragma once

#include "file/drawingfile.h"
#include "file/error.h"
#include "layerfilter.h"
#include "layerrecords.h"

#include <vector>

namespace drawing {

/// Where a filter of the newer kind stands.
struct FilterPlace
{
    quint64 dictionary = 0;
    QByteArray key;
    quint64 record = 0;
    quint64 parent = 0; ///< The record of the filter around it; 0 at the top.
};

/// The filters of the newer kind in the order of their dictionaries, those inside a filter behind
/// it. They hang in the extension dictionary of the filter around them, at once or in a dictionary
/// there.
std::vector<FilterPlace> filterPlaces(const DrawingFile& file);
/// The list that older programs keep; 0 without one.
quint64 oldFilterList(const DrawingFile& file);

/// The layer filters of a drawing. What a record holds besides name, expression and layers is kept
/// as it is. Older programs have a list of their own, with the property filters at the top once
/// more; what is there of a filter that changes or goes does so as well.
class SavedFilters
{
public:
    SavedFilters(DrawingFile& file, const LayerTable& layers, LayerRecords& records)
        : m_file(file),
          m_layers(layers),
          m_records(records)
    {
    }

    /// In the order of `filterPlaces`; then those that only the older list has.
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
    /// Null takes the filter out.
    void changeOld(const LayerFilter& before, const LayerFilter* after);

    DrawingFile& m_file;
    const LayerTable& m_layers;
    LayerRecords& m_records;
};

} // namespace drawing
