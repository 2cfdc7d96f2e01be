#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>

#include <algorithm>
#include <vector>

/// Texts in a place where each letter can be pressed once: a window, a menu.
using Place = QStringList;

/// Labels may hold their letters in plain brackets; here they have an ampersand.
inline std::vector<Place> placesIn(const QWidget& window)
{
    static const QRegularExpression plain("\\((?:<u>)?([A-Z])(?:</u>)?\\)");
    std::vector<Place> places(1);
    Place& own = places.front();
    const auto add = [&own](const auto& widgets, auto text) {
        for (const auto* widget : widgets) {
            if (widget->isVisible())
                own += (widget->*text)();
        }
    };
    add(window.findChildren<QLabel*>(), &QLabel::text);
    own.replaceInStrings(plain, "(&\\1)");
    add(window.findChildren<QAbstractButton*>(), &QAbstractButton::text);
    add(window.findChildren<QGroupBox*>(), &QGroupBox::title);
    for (const auto* tabs : window.findChildren<QTabBar*>()) {
        for (int i = 0; tabs->isVisible() && i < tabs->count(); ++i)
            own += tabs->tabText(i);
    }
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* action : bar->actions())
            own += bar->isVisible() ? action->text() : QString();
    }
    for (const auto* menu : window.findChildren<QMenu*>()) {
        Place& place = places.emplace_back();
        for (const QAction* action : menu->actions())
            place += action->text();
    }
    return places;
}

/// The letters that stand twice in a place.
inline QString sharedLetters(const QWidget& window)
{
    QString shared;
    for (const Place& place : placesIn(window)) {
        QString seen;
        for (const QString& text : place) {
            const QString letter = QKeySequence::mnemonic(text).toString().right(1);
            (seen.contains(letter) ? shared : seen) += letter;
        }
    }
    std::sort(shared.begin(), shared.end());
    return shared;
}
