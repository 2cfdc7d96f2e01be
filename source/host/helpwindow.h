#pragma once

#include <QDialog>

class QTextBrowser;

namespace host {

/// The help of one dialog, beside which it stays open.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Shows the help of `window` (the start page where it has none, and for null); the window that
    /// is open already is used again.
    static void showFor(QWidget* window, int topic);

    void showTopic(const QString& dialogName);

private:
    QTextBrowser* m_text;
};

} // namespace host
