#pragma once

#include <QMenu>

/// Chooses the language that the workbench starts in and keeps the choice among the settings.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent = nullptr);

    /// Shows all texts in this language, "zh" or "en"; where it is empty in the one that was chosen
    /// from the menu, else in that of the locale. To be called before windows are made.
    static void useLanguage(const QString& asked);

signals:
    /// A sentence for the user.
    void said(const QString& text);
};
