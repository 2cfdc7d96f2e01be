#pragma once

#include <QStringList>
#include <QWidget>

class QKeyEvent;
class QLineEdit;
class QPlainTextEdit;

/// The command line: the latest messages above a line edit with completion. Up and Down recall
/// earlier input. Enter and the space bar repeat the last command when the line is empty; Esc then
/// cancels what is under way.
class CommandLine : public QWidget
{
    Q_OBJECT

public:
    explicit CommandLine(QWidget* parent = nullptr);

    void setWords(const QStringList& words); ///< Offered for completion, ignoring letter case.
    void say(const QString& text);           ///< Adds a line to the messages.
    QString echo() const;

    /// Tells which command was run last, however it was started.
    void setLastCommand(const QString& word) { m_lastCommand = word; }
    /// Enters the command that was run last; nothing where there was none.
    void repeat();
    /// Puts the cursor into the line.
    void takeFocus();
    /// Takes a key that was pressed elsewhere as typed here; false for one that types nothing.
    bool takeKey(const QKeyEvent& key);

signals:
    void entered(const QString& word); ///< Without surrounding blanks and never empty.
    void enteredNothing();             ///< Enter or the space bar on the empty line.
    void gaveUp();                     ///< Esc on the empty line.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter();
    void submit(const QString& word);
    bool pressed(const QKeyEvent& key);
    void showHistory(int step);

    QPlainTextEdit* m_echo = nullptr;
    QLineEdit* m_input = nullptr;
    QString m_lastCommand;
    QStringList m_history;
    int m_shown = 0; ///< An index into the history; its size stands for the line being typed.
};
