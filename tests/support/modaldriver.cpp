#include "modaldriver.h"

#include <QApplication>
#include <QEvent>
#include <QtTest>

ModalDriver::ModalDriver()
{
    qApp->installEventFilter(this);
}

ModalDriver::~ModalDriver()
{
    if (!m_steps.isEmpty())
        QTest::qFail("fewer dialogs came up than were expected", __FILE__, __LINE__);
}

bool ModalDriver::eventFilter(QObject* object, QEvent* event)
{
    auto* const dialog = qobject_cast<QDialog*>(object);
    if (event->type() != QEvent::Show || !dialog || !dialog->isModal())
        return false;
    if (m_steps.isEmpty()) {
        const QString text = "unexpected dialog: " + dialog->windowTitle();
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
        QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
        return false;
    }
    const Step step = m_steps.dequeue();
    QMetaObject::invokeMethod(
        dialog, [dialog, step] { step(*dialog); }, Qt::QueuedConnection);
    return false;
}
