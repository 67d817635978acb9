#pragma once

#include <QObject>
#include <QProcess>

namespace Ravik::Internal {

/// The key that the SDK logs in to its emulators with.
class SshKeyPair : public QObject
{
    Q_OBJECT

public:
    explicit SshKeyPair(const QString &privateKeyFile);
    ~SshKeyPair() override;

    [[nodiscard]] QString privateKeyFile() const;
    [[nodiscard]] QString publicKeyFile() const;

    /// Makes the pair unless it exists; ready() or failed() follows, possibly at once.
    void ensure();
    /// Stops making it: neither signal follows.
    void cancel();

Q_SIGNALS:
    void ready();
    void failed(const QString &reason);

private:
    [[nodiscard]] bool exists() const;
    void check();

    const QString m_privateKeyFile;
    QProcess m_generator;
};

} // namespace Ravik::Internal
