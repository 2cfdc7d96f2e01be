#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

/// Where commands are typed: an echo of what was said above, a line with completion below. Up and
/// Down walk through what was typed before.
class CommandLine : public QWidget
{
    Q_OBJECT

public:
    explicit CommandLine(QWidget* parent = nullptr);

    void setWords(const QStringList& words); ///< Offered while typing, in any case.
    void say(const QString& text);           ///< Adds a line to the echo.
    QString echo() const;

signals:
    void entered(const QString& word); ///< Trimmed, never empty.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter();
    void showHistory(int step);

    QPlainTextEdit* m_echo = nullptr;
    QLineEdit* m_input = nullptr;
    QStringList m_history;
    int m_shown = 0; ///< Index into the history; its size stands for the line being typed.
};
