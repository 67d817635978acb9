#pragma once

#include "ravik/virtualmachine.h"
#include "sdksettings.h"
#include "sshkeypair.h"
#include "sshprobe.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>

namespace Ravik::Internal {

/// A virtual machine that is a process: the local emulator.
class LocalMachine final : public VirtualMachine
{
    Q_OBJECT

public:
    LocalMachine(const EmulatorSettings &settings, const HostSettings &host, QObject *parent);
    ~LocalMachine() override;

    bool isOff(bool *runningHeadless, bool *startedOutside) const override;
    [[nodiscard]] State state() const override;
    [[nodiscard]] QString errorString() const override;
    bool hasPortForwarding(unsigned short hostPort, QString *ruleName) const override;
    void addPortForwarding(const QString &ruleName, const QString &protocol,
                           unsigned short hostPort, unsigned short emulatorPort,
                           const QObject *context, Callback callback) override;
    void connectTo(ConnectOptions options, const QObject *context, Callback callback) override;
    void shutDown() override;
    [[nodiscard]] QSsh::SshConnectionParameters sshParameters() const override;

    /// The settings that the machine is started with.
    [[nodiscard]] const EmulatorSettings &settings() const;
    /// Takes effect at the next start.
    void setDeviceModel(const QString &name);

Q_SIGNALS:
    void settingsChanged();

private:
    struct Waiting
    {
        QPointer<const QObject> context;
        Callback callback;
    };

    void start();
    void launch();
    void fail(const QString &reason);
    void stopProcess();
    void handleStarted();
    void handleFinished();
    void setState(State state);
    void settle(State state, bool success);
    [[nodiscard]] QString dataFile(const QString &fileName) const;
    [[nodiscard]] QList<PortForwarding> forwardings() const;
    [[nodiscard]] QStringList arguments() const;

    EmulatorSettings m_settings;
    const HostSettings m_host;
    State m_state = Disconnected;
    bool m_off = true;
    QString m_errorString;
    QList<Waiting> m_waiting; // callers of connectTo() without an answer yet

    SshKeyPair m_key;
    QProcess m_process;
    SshProbe m_probe;
    QTimer m_killTimer;
};

} // namespace Ravik::Internal
