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

/// The layer panel beside the canvas: a search, a table of layers, and actions on the selected
/// ones.
class LayerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LayerPanel(QWidget* parent = nullptr);
    ~LayerPanel() override;

    void setDrawing(drawing::Drawing* drawing); ///< Null when none is open.
    /// While busy, the panel shows layers but does not change them.
    void setBusy(bool busy);

    LayerModel* model() const { return m_model; }
    LayerView* view() const { return m_view; }
    /// What commands can learn about former states of the layers.
    LayerMemory* memory() { return &m_memory; }

signals:
    void editBegan(); ///< The panel alone may use the drawing until `editEnded`.
    void editEnded();
    void refused(const QStringList& sentences); ///< Why an action was not done, or only partly.
    void said(const QString& text);             ///< A line for the command line.
    /// Asks to run a command on these layers.
    void commandWanted(const QString& name, const std::vector<drawing::LayerId>& layers);
    /// Asks to select these entities on the canvas and, if `intoView` is set, to zoom to them.
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
    QString m_fault; ///< The fault in the typed search.
};
