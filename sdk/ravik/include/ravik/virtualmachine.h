#pragma once

#include "ravik_global.h"

#include <ssh/sshconnectionparameters.h>

#include <QObject>

#include <functional>

namespace Ravik {

/// The virtual machine of an emulator.
///
/// Operations that take a context and a callback are asynchronous: the event loop of the context's
/// thread calls the callback once, unless the context has been destroyed.
class RAVIK_EXPORT VirtualMachine : public QObject
{
    Q_OBJECT

public:
    enum State {
        Disconnected = 0,
        Starting = 1,      ///< being started, not running yet
        Connecting = 2,    ///< running, not reachable yet
        Error = 3,         ///< the last start failed; errorString() says why
        Connected = 4,     ///< reachable: its SSH server answers
        Disconnecting = 5, ///< being shut down
    };
    Q_ENUM(State)

    /// This SDK has no options; other SDKs may have some.
    enum ConnectOption {
        NoConnectOptions = 0,
    };
    Q_DECLARE_FLAGS(ConnectOptions, ConnectOption)

    using Callback = std::function<void(bool)>;

    using QObject::QObject;
    ~VirtualMachine() override;

    /// True unless the machine runs. The arguments, which may be null, receive whether it runs
    /// without a window and whether someone other than the SDK started it.
    virtual bool isOff(bool *runningHeadless, bool *startedOutside) const = 0;
    [[nodiscard]] virtual State state() const = 0;
    /// Why the last start failed or the machine ended by itself; empty otherwise.
    [[nodiscard]] virtual QString errorString() const = 0;

    /// Whether a port of this computer is forwarded into the machine. \a ruleName receives the
    /// rule's name, if there is a rule; it may be null.
    virtual bool hasPortForwarding(unsigned short hostPort, QString *ruleName) const = 0;

    /// Adds a rule that takes effect at the next start. \a protocol is "tcp" or "udp". Fails while
    /// the machine runs, and when a rule with that name or host port exists.
    virtual void addPortForwarding(const QString &ruleName, const QString &protocol,
                                   unsigned short hostPort, unsigned short emulatorPort,
                                   const QObject *context, Callback callback)
        = 0;

    /// Starts the machine if it is off. Calls back with true when the machine is reachable, with
    /// false when the start has failed.
    virtual void connectTo(ConnectOptions options, const QObject *context, Callback callback) = 0;

    /// Asks the machine to end, and kills it if it still runs after a few seconds.
    virtual void shutDown() = 0;

    [[nodiscard]] virtual QSsh::SshConnectionParameters sshParameters() const = 0;

Q_SIGNALS:
    void virtualMachineOffChanged(bool off);
    void stateChanged();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VirtualMachine::ConnectOptions)

} // namespace Ravik
