#pragma once

#include <QObject>
#include <QProcess>

namespace Ravik::Internal {

/// The pair of keys with which the SDK logs in to its emulators.
class SshKeyPair : public QObject
{
    Q_OBJECT

public:
    explicit SshKeyPair(const QString &privateKeyFile);
    ~SshKeyPair() override;

    [[nodiscard]] QString privateKeyFile() const;
    [[nodiscard]] QString publicKeyFile() const;

    /// Makes the pair unless it exists. ready() or failed() follows, possibly before this returns.
    void ensure();
    /// Stops making the pair. Neither signal follows.
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
