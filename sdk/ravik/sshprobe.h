#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QTcpSocket>
#include <QTimer>

namespace Ravik::Internal {

/// Finds out when an SSH server on this computer begins to answer.
class SshProbe : public QObject
{
    Q_OBJECT

public:
    SshProbe();

    /// Tries until the server answers or the time is over.
    void start(quint16 port);
    void stop();

Q_SIGNALS:
    void reachable();
    void timedOut();

private:
    void poll();
    void readGreeting();

    quint16 m_port = 0;
    QTcpSocket m_socket;
    QTimer m_pollTimer;
    QDeadlineTimer m_deadline;
};

} // namespace Ravik::Internal
