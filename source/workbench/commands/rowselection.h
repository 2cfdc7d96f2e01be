#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

class QListWidget;

/// Selects rows of a list of layers in the next dialog that comes up while it lives. Dialogs know
/// nothing of what is selected on a canvas, but their lists can be found by name.
class RowSelection : public QObject
{
public:
    /// Rows of these names; where the list has none of them, its own choice stays.
    explicit RowSelection(const QStringList& names);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void select(QListWidget& list) const;

    QSet<QString> m_names;
};
