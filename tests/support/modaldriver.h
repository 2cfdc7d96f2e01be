#pragma once

#include <QDialog>
#include <QQueue>

#include <functional>

/// Acts like a user in modal dialogs. Each dialog that appears gets the next step; steps left over
/// at the end fail the test.
class ModalDriver : public QObject
{
public:
    using Step = std::function<void(QDialog& dialog)>;

    ModalDriver();
    ~ModalDriver() override;

    /// Adds a step. It must close its dialog, immediately or later.
    void then(const Step& step) { m_steps.enqueue(step); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QQueue<Step> m_steps;
};
