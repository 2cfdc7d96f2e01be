#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

/// Answers message boxes in the order in which they appear and records their texts. Each answer is
/// the text of a button; an empty one is Esc.
class BoxAnswerer : public QObject
{
public:
    explicit BoxAnswerer(const QStringList& answers) : m_answers(answers)
    {
        connect(&m_timer, &QTimer::timeout, this, &BoxAnswerer::look);
        m_timer.start(2);
    }

    const QStringList& texts() const { return m_texts; }
    bool waitForAll()
    {
        return QTest::qWaitFor([this] { return m_answers.isEmpty(); }, 10000);
    }

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || m_answers.isEmpty())
            return;
        m_texts.append(box->text());
        const QString answer = m_answers.takeFirst();
        if (answer.isEmpty()) {
            QTest::keyClick(box, Qt::Key_Escape);
            return;
        }
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == answer)
                button->click();
        }
    }

    QStringList m_answers;
    QStringList m_texts;
    QTimer m_timer;
};
