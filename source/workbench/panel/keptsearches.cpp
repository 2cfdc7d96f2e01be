#include "keptsearches.h"

#include <QMenu>
#include <QSettings>

namespace {

const char kKey[] = "panel/searches";

QString escaped(const QString& text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

KeptSearches::KeptSearches(QWidget* parent) : QToolButton(parent)
{
    setObjectName(QStringLiteral("keptSearches"));
    setText(tr("搜索"));
    setToolTip(tr("保留的搜索"));
    setPopupMode(InstantPopup);
    auto* const menu = new QMenu(this);
    setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &KeptSearches::fill);
}

QStringList KeptSearches::kept()
{
    return QSettings().value(QLatin1String(kKey)).toStringList();
}

void KeptSearches::keep(const QStringList& searches)
{
    QSettings().setValue(QLatin1String(kKey), searches);
}

void KeptSearches::fill()
{
    menu()->clear();
    const QString typed = m_typed.trimmed();
    for (const QString& search : kept()) {
        QAction* const action = menu()->addAction(escaped(search));
        action->setCheckable(true);
        action->setChecked(search == typed);
        connect(action, &QAction::triggered, this, [this, search] { emit chosen(search); });
    }
    menu()->addSeparator();
    const bool isKept = kept().contains(typed);
    QAction* const change =
        menu()->addAction(isKept ? tr("不再保留“%1”").arg(escaped(typed)) : tr("保留当前的搜索"));
    change->setEnabled(!typed.isEmpty());
    connect(change, &QAction::triggered, this, [typed, isKept] {
        QStringList searches = kept();
        searches.removeAll(typed);
        if (!isKept)
            searches.append(typed);
        keep(searches);
    });
}
