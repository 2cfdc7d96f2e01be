#pragma once

#include <QMenu>
#include <QStringList>

/// The menu of recently opened drawings, which are stored in the user's settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget* parent = nullptr);

    QStringList paths() const;               ///< The latest comes first.
    void add(const QString& path);           ///< Moves the path to the front.
    void removeMissing(const QString& path); ///< Removes the path if its file no longer exists.

signals:
    void chosen(const QString& path);

private:
    void store(const QStringList& paths);
    void rebuild();
};
