#pragma once

#include <QObject>

#include <atomic>

class QSocketNotifier;

namespace layertool {

/// Reports SIGINT and SIGTERM through the event loop or through a flag. Only one object may exist.
class Interruption : public QObject
{
    Q_OBJECT

public:
    /// When `flag` is not null, a signal sets it immediately.
    explicit Interruption(std::atomic<bool>* flag = nullptr);
    ~Interruption() override;

    /// The signal that arrived; 0 when there was none.
    static int signalNumber();

signals:
    void interrupted();

private:
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace layertool
