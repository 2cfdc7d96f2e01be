#pragma once

#include "layerorder.h"
#include "layersearch.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QTimer>

/// The layers of a drawing that pass a search and a filter, sorted by a column. The model follows
/// the drawing; each row refers to a position in a snapshot. Searching is done in slices so that
/// neither many layers nor a slow expression blocks the window.
class LayerModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LayerModel(QObject* parent = nullptr);

    void setDrawing(drawing::Drawing* drawing); ///< Null shows nothing.
    drawing::Drawing* drawing() const { return m_drawing; }
    /// Sets the test for the typed search. Null tests, here and for the filter, let every layer
    /// pass.
    void setSearch(const LayerTest& test);
    void setFilter(const LayerTest& test);

    const LayerSnapshot& layers() const { return m_layers; }
    LayerRow layerRow(int row) const { return {m_layers, m_rows[static_cast<size_t>(row)]}; }
    drawing::LayerId idAt(int row) const { return layerRow(row).layer().id; }
    /// The rows of layers in ascending order. Layers without a row are left out.
    std::vector<int> rowsOf(const std::vector<drawing::LayerId>& layers) const;
    /// Whether the rows correspond to what was last requested and nothing is pending.
    bool isSettled() const { return !m_scan.isActive() && !m_order.isPending(); }

    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortDirection() const { return m_direction; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Requests an edit through the signal `edited`. The value is a text as cells show it or people
    /// type it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder direction) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    /// The MIME type of dragged layers.
    static QString dragType();
    static std::vector<drawing::LayerId> dragged(const QMimeData& data);

signals:
    void rowsAboutToChange(); ///< The rows will be replaced; references to rows become invalid.
    void rowsChanged();
    void settled();        ///< See `isSettled`.
    void drawingChanged(); ///< Layers changed, or something else in the drawing did.
    /// A text was entered in a cell.
    void edited(drawing::LayerId layer, int column, const QString& text);

private:
    void follow();
    void startScan();
    void scan();
    void publish();
    bool passes(int at);
    QVariant decoration(const LayerColumn& column, const LayerRow& row) const;

    QPointer<drawing::Drawing> m_drawing;
    LayerSnapshot m_layers;
    LayerOrder m_order;
    std::vector<int> m_rows;    ///< Positions in the snapshot.
    bool m_rowsAreGone = false; ///< The rows will be replaced.
    int m_sortColumn = 1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    LayerTest m_search;
    LayerTest m_filter;
    QTimer m_scan; ///< Runs while the layers are being searched.
    size_t m_scanned = 0;
    std::vector<int> m_passed;
};
