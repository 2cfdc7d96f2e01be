#include "commandline.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kEchoLines = 500;
constexpr int kVisibleLines = 3;
constexpr int kHistory = 100;

} // namespace

CommandLine::CommandLine(QWidget* parent) : QWidget(parent)
{
    m_echo = new QPlainTextEdit(this);
    m_echo->setObjectName(QStringLiteral("commandEcho"));
    m_echo->setReadOnly(true);
    m_echo->setMaximumBlockCount(kEchoLines);
    m_echo->setFocusPolicy(Qt::NoFocus);
    m_echo->setAccessibleName(tr("命令回显"));
    m_input = new QLineEdit(this);
    m_input->setObjectName(QStringLiteral("commandInput"));
    m_input->setAccessibleName(tr("命令"));
    m_input->setPlaceholderText(tr("键入命令"));
    m_input->installEventFilter(this);
    auto* label = new QLabel(tr("命令:"), this);
    label->setBuddy(m_input);

    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_input);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(2);
    layout->addWidget(m_echo);
    layout->addLayout(line);
    m_echo->setMinimumHeight(m_echo->fontMetrics().lineSpacing() * kVisibleLines + 12);

    connect(m_input, &QLineEdit::returnPressed, this, &CommandLine::enter);
}

void CommandLine::setWords(const QStringList& words)
{
    auto* completer = new QCompleter(words, m_input);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    delete m_input->completer();
    m_input->setCompleter(completer);
}

void CommandLine::say(const QString& text)
{
    m_echo->appendPlainText(text);
}

QString CommandLine::echo() const
{
    return m_echo->toPlainText();
}

void CommandLine::enter()
{
    const QString word = m_input->text().trimmed();
    // A command may pick on the canvas, over which the list must not stay.
    if (QCompleter* const completer = m_input->completer())
        completer->popup()->hide();
    m_input->clear();
    m_shown = m_history.size();
    if (word.isEmpty())
        emit enteredNothing();
    else
        submit(word);
}

void CommandLine::submit(const QString& word)
{
    if (m_history.isEmpty() || m_history.last() != word)
        m_history.append(word);
    if (m_history.size() > kHistory)
        m_history.removeFirst();
    m_shown = m_history.size();
    say(tr("命令: %1").arg(word));
    emit entered(word);
}

void CommandLine::repeat()
{
    if (!m_lastCommand.isEmpty())
        submit(m_lastCommand);
}

void CommandLine::takeFocus()
{
    m_input->setFocus();
}

bool CommandLine::takeKey(const QKeyEvent& key)
{
    const bool isPlain = !(key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const QString text = key.text();
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isPlain || (!isEnter && (text.isEmpty() || !text.front().isPrint())))
        return false;
    takeFocus();
    QKeyEvent typed(key);
    QCoreApplication::sendEvent(m_input, &typed);
    return true;
}

void CommandLine::showHistory(int step)
{
    const int shown = std::clamp(m_shown + step, 0, m_history.size());
    if (shown == m_shown)
        return;
    m_shown = shown;
    m_input->setText(m_history.value(shown));
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_input && event->type() == QEvent::ShortcutOverride) {
        // With an empty line, undo and redo apply to the drawing.
        const auto* typed = static_cast<QKeyEvent*>(event);
        if (m_input->text().isEmpty() &&
            (typed->matches(QKeySequence::Undo) || typed->matches(QKeySequence::Redo))) {
            event->ignore();
            return true;
        }
    }
    if (watched != m_input || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    // While the completion list is open, it receives the keys.
    const bool completing = m_input->completer() && m_input->completer()->popup()->isVisible();
    return (!completing && pressed(*static_cast<QKeyEvent*>(event))) ||
           QWidget::eventFilter(watched, event);
}

/// True where the key has done its work.
bool CommandLine::pressed(const QKeyEvent& key)
{
    const bool isEmpty = m_input->text().isEmpty();
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        showHistory(key.key() == Qt::Key_Up ? -1 : 1);
        return true;
    case Qt::Key_Escape:
        m_input->clear();
        if (isEmpty)
            emit gaveUp();
        return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isEmpty && !key.isAutoRepeat()) // A key held down is no command after command.
            enter();
        return isEmpty;
    default:
        return false;
    }
}
