#pragma once

#include <QDialog>
#include <QQueue>

#include <functional>

/// Does in modal dialogs what a user would: each dialog that comes up gets the next step. Steps
/// that are left at the end fail the test.
class ModalDriver : public QObject
{
public:
    using Step = std::function<void(QDialog& dialog)>;

    ModalDriver();
    ~ModalDriver() override;

    /// Queues a step; it must end its dialog, at once or later.
    void then(const Step& step) { m_steps.enqueue(step); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QQueue<Step> m_steps;
};
