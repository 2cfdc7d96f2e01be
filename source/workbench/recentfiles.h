#pragma once

#include <QMenu>
#include <QStringList>

/// The menu of drawings opened lately, kept in the user's settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget* parent = nullptr);

    QStringList paths() const;               ///< The latest first.
    void add(const QString& path);           ///< Comes first from now on.
    void removeMissing(const QString& path); ///< Forgets it when it is not there any more.

signals:
    void chosen(const QString& path);

private:
    void store(const QStringList& paths);
    void rebuild();
};
