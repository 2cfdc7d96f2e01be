#include "recentfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

constexpr int kMostFiles = 9; ///< Each has one digit as its mnemonic in the menu.
const char kKey[] = "recentFiles";

} // namespace

RecentFiles::RecentFiles(QWidget* parent) : QMenu(tr("最近的文件(&R)"), parent)
{
    connect(this, &QMenu::aboutToShow, this, &RecentFiles::rebuild);
    rebuild();
}

QStringList RecentFiles::paths() const
{
    return QSettings().value(QLatin1String(kKey)).toStringList().mid(0, kMostFiles);
}

void RecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList known = paths();
    known.removeAll(absolute);
    known.prepend(absolute);
    store(known.mid(0, kMostFiles));
}

void RecentFiles::removeMissing(const QString& path)
{
    if (QFileInfo::exists(path))
        return;
    QStringList known = paths();
    known.removeAll(QFileInfo(path).absoluteFilePath());
    store(known);
}

void RecentFiles::store(const QStringList& paths)
{
    QSettings().setValue(QLatin1String(kKey), paths);
    rebuild();
}

void RecentFiles::rebuild()
{
    clear();
    int number = 1;
    for (const QString& path : paths()) {
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString text = QStringLiteral("&%1  %2").arg(number++).arg(shown);
        QAction* action = addAction(text);
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    if (isEmpty())
        addAction(tr("（无）"))->setEnabled(false);
}
