#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

/// The command line: the latest messages above a line edit with completion. Up and Down recall
/// earlier input.
class CommandLine : public QWidget
{
    Q_OBJECT

public:
    explicit CommandLine(QWidget* parent = nullptr);

    void setWords(const QStringList& words); ///< Offered for completion, ignoring letter case.
    void say(const QString& text);           ///< Adds a line to the messages.
    QString echo() const;

signals:
    void entered(const QString& word); ///< Without surrounding blanks and never empty.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter();
    void showHistory(int step);

    QPlainTextEdit* m_echo = nullptr;
    QLineEdit* m_input = nullptr;
    QStringList m_history;
    int m_shown = 0; ///< An index into the history; its size stands for the line being typed.
};
