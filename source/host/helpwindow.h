#pragma once

#include <QDialog>

class QTextBrowser;

namespace host {

/// A page of the manual, which stays open beside the dialog that it is about.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Shows the page about `window`, and the start page for null; the window that is open already
    /// is used again.
    static void showFor(QWidget* window, int topic);

private:
    void showTitle();

    QTextBrowser* m_text;
};

/// Opens the manual where F1 is pressed, at the page of the window there.
class HelpKey : public QObject
{
public:
    HelpKey();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace host
