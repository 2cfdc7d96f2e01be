#pragma once

#include "layerorder.h"
#include "layersearch.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QTimer>

/// The layers of a drawing that pass a search and a filter, in the order of a column. It follows
/// the drawing; each row is a place in a snapshot. Searching is done in slices between which the
/// window lives on, so that neither many layers nor a slow expression hold it up.
class LayerModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LayerModel(QObject* parent = nullptr);

    void setDrawing(drawing::Drawing* drawing); ///< Null shows nothing.
    drawing::Drawing* drawing() const { return m_drawing; }
    /// Null tests pass every layer. The search is what is typed, the filter what is chosen.
    void setSearch(const LayerTest& test);
    void setFilter(const LayerTest& test);

    const LayerSnapshot& layers() const { return m_layers; }
    LayerRow layerRow(int row) const { return {m_layers, m_rows[static_cast<size_t>(row)]}; }
    drawing::LayerId idAt(int row) const { return layerRow(row).layer().id; }
    /// The rows of layers, ascending; those not shown are left out.
    std::vector<int> rowsOf(const std::vector<drawing::LayerId>& layers) const;
    /// Whether the rows are what was asked for, with nothing under way.
    bool isSettled() const { return !m_scan.isActive() && !m_order.isPending(); }

    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortDirection() const { return m_direction; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A text, as cells show it or people type it; asks for the edit, see `edited`.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder direction) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    /// The type under which layers are dragged, and what is dragged so.
    static QString dragType();
    static std::vector<drawing::LayerId> dragged(const QMimeData& data);

signals:
    void rowsAboutToChange(); ///< Other rows are to come; what refers to rows is worthless then.
    void rowsChanged();
    void settled();        ///< See `isSettled`.
    void drawingChanged(); ///< Layers, or what the drawing says elsewhere.
    /// A cell was given a text.
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
    std::vector<int> m_rows;    ///< Places in the snapshot.
    bool m_rowsAreGone = false; ///< Others are to come.
    int m_sortColumn = 1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    LayerTest m_search;
    LayerTest m_filter;
    QTimer m_scan; ///< Runs while the layers are gone through.
    size_t m_scanned = 0;
    std::vector<int> m_passed;
};
