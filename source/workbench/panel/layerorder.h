#pragma once

#include "layersnapshot.h"

#include <QObject>
#include <QThreadPool>

#include <vector>

/// Sorts the layers of a snapshot by a column. Names are compared as people expect, with numbers by
/// value. For many layers that takes time and is done on another thread.
class LayerOrder : public QObject
{
    Q_OBJECT

public:
    explicit LayerOrder(QObject* parent = nullptr);
    ~LayerOrder() override;

    /// Sorts again. Until that is done, known layers keep their order and new ones come last.
    void sort(const LayerSnapshot& layers, int column, Qt::SortOrder direction);
    /// The positions in the snapshot, sorted.
    const std::vector<int>& places() const { return m_places; }
    /// Whether a thread is sorting.
    bool isPending() const { return m_isPending; }

signals:
    void sorted(); ///< The latest order is ready. Not emitted when `sort` finished it immediately.

private:
    using Places = std::vector<int>;

    void take(Places places);
    void keepPresent(int count);

    Places m_places;
    int m_round = 0; ///< The number of the latest request; earlier ones are obsolete.
    bool m_isPending = false;
    /// Declared last so that its thread ends before the other members are destroyed.
    QThreadPool m_pool;
};
