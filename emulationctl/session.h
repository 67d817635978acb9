#pragma once

#include "exitstatus.h"

#include <link/calllog.h>
#include <link/remotedbusinvokerservice.h>

#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

namespace EmulationCtl {

/// The options that all commands have.
struct GeneralOptions
{
    bool json = false;
    bool verbose = false;
    std::chrono::milliseconds timeout{5000}; ///< for the connection and for each reply
    quint16 port = EmulationManagement::Internal::RemoteDBusInvokerService::hostTcpPort;
};

/*!
 * One connection to the emulator: reports refused calls and decides the exit status.
 *
 * It ends when the link is lost or does not answer in time.
 */
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(const GeneralOptions &options, QObject *parent = nullptr);

    [[nodiscard]] const GeneralOptions &options() const { return m_options; }
    [[nodiscard]] EmulationManagement::Internal::RemoteDBusInvokerService &link() { return m_link; }
    [[nodiscard]] const EmulationManagement::Internal::CallLog &log() const { return m_log; }

    /// Connects to the emulator. connected() or ended() follows.
    void open();
    /// \a arguments are a text of MethodArguments.
    void call(const EmulationManagement::Internal::ServiceMethod &method, const QString &arguments);
    /// Lets the session end once the emulator has answered all calls.
    void close();
    /// Lets the session end as if the emulator had refused a call.
    void fail() { m_status = Refused; }
    /// Ends the session at once, after an error that was reported.
    void abort(ExitStatus status);
    /// Does not print calls as JSON: the command prints its own objects.
    void setQuiet() { m_quiet = true; }

Q_SIGNALS:
    void connected();
    /// The emulator answered or refused this call.
    void answered(const EmulationManagement::Internal::LoggedCall &call);
    /// Emitted once.
    void ended(EmulationCtl::ExitStatus status);

private:
    void handleFinished(qint64 serial);
    void handleTimeout();
    void endIfAnswered();

    GeneralOptions m_options;
    EmulationManagement::Internal::RemoteDBusInvokerService m_link;
    EmulationManagement::Internal::CallLog m_log;
    QTimer m_timeout;
    bool m_connected = false;
    bool m_closing = false;
    bool m_quiet = false;
    bool m_ended = false;
    ExitStatus m_status = Success;
};

} // namespace EmulationCtl
