#pragma once

#include <QDialog>

class QTextBrowser;

namespace host {

/// Shows a page of the manual. It can stay open beside the dialog that the page is about.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Shows the page about `window`, or the start page for null. An open help window is reused.
    static void showFor(QWidget* window, int topic);

private:
    void showTitle();

    QTextBrowser* m_text;
};

/// Opens the manual when F1 is pressed, at the page about the window that has the focus.
class HelpKey : public QObject
{
public:
    HelpKey();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace host
