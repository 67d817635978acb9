#pragma once

#include <QProcess>

namespace NimbraEmulator {

/// A process that does not outlive this one: the destructor ends it, and the kernel ends it when
/// this process dies in any way.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject *parent = nullptr);
    ~ChildProcess() override;

    /// Asks the process to end, and kills it after a few seconds.
    void stop();

    /// Waits until the output on \a channel contains \a text, and returns that output. Returns
    /// nothing if the process ends or takes too long.
    [[nodiscard]] QByteArray waitForOutput(ProcessChannel channel, QByteArrayView text);

Q_SIGNALS:
    /// The process ended although stop() was not called.
    void died();

private:
    bool m_stopping = false;
};

} // namespace NimbraEmulator
