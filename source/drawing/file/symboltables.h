#pragma once

#include "drawingdata.h"

namespace drawing {

/// Adds and removes records of the TABLES section, and what goes with them: handles, the handle
/// seed, the tables' counts. A table or section that is missing is made.
class SymbolTables
{
public:
    explicit SymbolTables(DrawingData& data) : m_data(data) {}

    /// Adds a record for `entry`, filling in its place and handle.
    void addLayerRecord(LayerEntry& entry);
    void removeLayerRecord(const LayerEntry& entry);
    /// The bytes of the layer's record as edited so far.
    QByteArray layerRecord(const LayerEntry& entry) const;
    void setLayerRecord(const LayerEntry& entry, const QByteArray& record);

    /// Adds a record with these tags behind its head to a table other than the layers'. `added`
    /// tells how many that makes since the file was read. Returns its handle; 0 in formats without.
    quint64 addRecord(TableKind kind, int added, const std::vector<TextTag>& tags);
    /// Lists an XDATA application, where it is not listed yet.
    void needAppId(const QString& name);
    /// Writes the current layer's name to the header.
    void writeCurrentLayer();
    /// Writes whether model space or a layout is shown to the header.
    void writeTileMode();

    /// A handle for a new object, and the seed behind it; 0 in formats without handles.
    quint64 takeHandle();
    /// 0 for a table without a handle.
    quint64 tableHandle(TableKind kind) const;

private:
    struct Spot;

    Spot spot(TableKind kind) const;
    void countRecords(const Spot& spot, TableKind kind, int added);
    void makeFrame(const Spot& spot, TableKind kind, int records);
    void writeHeader(std::string_view name, HeaderVariable which, int code, const QByteArray& text);

    DrawingData& m_data;
};

} // namespace drawing
