#pragma once

#include "layereditor.h"
#include "layermemory.h"
#include "layermodel.h"

#include <QWidget>

class FilterPane;
class KeptSearches;
class LayerView;
class QLabel;
class QLineEdit;
class QSplitter;

/// The layers of the drawing beside the canvas: a search, a table, and what is done to the layers
/// chosen in it.
class LayerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LayerPanel(QWidget* parent = nullptr);
    ~LayerPanel() override;

    void setDrawing(drawing::Drawing* drawing); ///< Null: none is open.
    /// While busy the panel shows the layers, and changes none.
    void setBusy(bool busy);

    LayerModel* model() const { return m_model; }
    LayerView* view() const { return m_view; }
    /// What commands know of the layers' former states.
    LayerMemory* memory() { return &m_memory; }

signals:
    void editBegan(); ///< Between this and `editEnded` the panel has the drawing to itself.
    void editEnded();
    void refused(const QStringList& sentences); ///< Why an act was not done, or not wholly.
    void said(const QString& text);             ///< A line for the command line's echo.
    /// A command is to be run on these layers.
    void commandWanted(const QString& name, const std::vector<drawing::LayerId>& layers);
    /// These are to be selected on the canvas, and brought into view.
    void entitiesWanted(const std::vector<int>& entities, bool intoView);

private:
    using Layers = std::vector<drawing::LayerId>;

    QWidget* makeSearchLine();
    void connectParts();
    void search(const QString& typed);
    void showCounts();

    Layers targets(drawing::LayerId layer) const;
    void setText(drawing::LayerId layer, int column, const QString& text);
    void toggle(drawing::LayerId layer, int column);
    void chooseColor(drawing::LayerId layer, int column);
    void makeCurrent(drawing::LayerId layer);
    void copy() const;
    void paste();
    void showMenu(const QPoint& at);
    void addLayer();
    void selectOnLayers();
    void showUses();
    void purge();

    LayerEditor* m_editor;
    LayerModel* m_model;
    LayerView* m_view;
    FilterPane* m_filters;
    QSplitter* m_splitter;
    LayerMemory m_memory;
    QLineEdit* m_search = nullptr;
    KeptSearches* m_kept = nullptr;
    QLabel* m_counts = nullptr;
    QString m_fault; ///< Of what is typed into the search.
};
