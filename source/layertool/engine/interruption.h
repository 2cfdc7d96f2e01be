#pragma once

#include <QObject>

#include <atomic>

class QSocketNotifier;

namespace layertool {

/// Tells of SIGINT and SIGTERM, in the event loop or through a flag. One at a time.
class Interruption : public QObject
{
    Q_OBJECT

public:
    /// Sets `flag`, where there is one, as soon as a signal comes.
    explicit Interruption(std::atomic<bool>* flag = nullptr);
    ~Interruption() override;

    /// The signal that came; 0 as long as there was none.
    static int signalNumber();

signals:
    void interrupted();

private:
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace layertool
