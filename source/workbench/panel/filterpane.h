#pragma once

#include "layereditor.h"
#include "layersearch.h"

#include <QWidget>

class FilterTree;
class QLineEdit;

/// Shows the layer filters of the drawing as a tree, preceded by a few that every drawing has, and
/// the expression of the selected filter. Layers dropped on a group filter are added to it.
class FilterPane : public QWidget
{
    Q_OBJECT

public:
    explicit FilterPane(LayerEditor* editor, QWidget* parent = nullptr);

    /// Reads the drawing's filters again.
    void follow();
    /// Sets the text of the search, which a new filter takes over.
    void setTyped(const QString& typed) { m_typed = typed; }
    /// Whether a group filter is selected, from which layers can be removed.
    bool isGroupChosen() const;
    void removeFromGroup(const std::vector<drawing::LayerId>& layers);

signals:
    void chosen(const LayerTest& test); ///< Null selects all layers.

private:
    using Filter = drawing::LayerFilter;

    const Filter* find(quint64 record) const;
    LayerTest testOf(const Filter& filter) const;
    void choose();
    void fill();
    void showMenu(const QPoint& at);
    void add(Filter::Kind kind, const std::vector<drawing::LayerId>& layers);
    void rename(quint64 record, const QString& name);
    void setExpression();
    void remove(quint64 record);
    void drop(quint64 record, const std::vector<drawing::LayerId>& layers);
    void change(const QString& name, const Filter& filter);

    LayerEditor* m_editor;
    FilterTree* m_tree;
    QLineEdit* m_expression;
    std::vector<Filter> m_filters;
    QString m_typed;
};
