#pragma once

#include <QMenu>

/// Lets the user choose the language in which the workbench starts, and stores it in the settings.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent = nullptr);

    /// Shows all texts in this language, one of `language::kCodes`. When `asked` is empty, uses the
    /// language chosen in the menu, or else that of the locale. Call this before any window is
    /// made.
    static void useLanguage(const QString& asked);

signals:
    /// A sentence for the user.
    void said(const QString& text);
};
