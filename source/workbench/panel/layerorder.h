#pragma once

#include "layersnapshot.h"

#include <QObject>
#include <QThreadPool>

#include <vector>

/// The order of a snapshot's layers by a column. Names are compared as people look them up, numbers
/// in them by their value; of many layers that takes time and is done on another thread.
class LayerOrder : public QObject
{
    Q_OBJECT

public:
    explicit LayerOrder(QObject* parent = nullptr);
    ~LayerOrder() override;

    /// Sorts anew. Until it is done, layers that are there stay in their order, new ones are last.
    void sort(const LayerSnapshot& layers, int column, Qt::SortOrder direction);
    /// Places in the snapshot.
    const std::vector<int>& places() const { return m_places; }
    /// Whether a thread is at it.
    bool isPending() const { return m_isPending; }

signals:
    void sorted(); ///< The order asked for last is there; not sent when `sort` made it itself.

private:
    using Places = std::vector<int>;

    void take(Places places);
    void keepPresent(int count);

    Places m_places;
    int m_round = 0; ///< What was asked for before the last time is of no use.
    bool m_isPending = false;
    QThreadPool m_pool; ///< Last: its thread ends before anything else goes.
};
