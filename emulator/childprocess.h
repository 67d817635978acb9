#pragma once

#include <QProcess>

namespace NimbraEmulator {

/// A process that does not outlive this one: it is ended by the destructor, and by the kernel when
/// this process dies in whatever way.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject *parent = nullptr);
    ~ChildProcess() override;

    /// Ends the process: asks it to, and after a few seconds makes it.
    void stop();

    /// Lets the process run until its output on \a channel holds \a text; returns that output, or
    /// an empty one when the process ended or took too long.
    [[nodiscard]] QByteArray waitForOutput(ProcessChannel channel, QByteArrayView text);

Q_SIGNALS:
    /// The process ended without being asked to.
    void died();

private:
    bool m_stopping = false;
};

} // namespace NimbraEmulator
