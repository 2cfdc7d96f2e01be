#pragma once

#include <QMenu>
#include <QStringList>

/// The menu of drawings opened lately, kept in the user's settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget* parent = nullptr);

    QStringList paths() const;        ///< The latest first.
    void add(const QString& path);    ///< Comes first from now on.
    void remove(const QString& path); ///< It cannot be opened any more.

signals:
    void chosen(const QString& path);

private:
    void store(const QStringList& paths);
    void rebuild();
};
