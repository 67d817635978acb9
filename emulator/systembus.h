#pragma once

#include "childprocess.h"

#include <QDBusConnection>
#include <QTemporaryDir>

namespace NimbraEmulator {

/// The emulator's system bus: its own D-Bus daemon with a socket in a private folder.
class SystemBus : public QObject
{
    Q_OBJECT

public:
    explicit SystemBus(QObject *parent = nullptr);

    /// Starts the daemon and returns when it is ready. On failure puts one sentence into \a error.
    [[nodiscard]] bool start(QString *error);

    /// A new connection to the bus, called \a name within this program; not connected on failure.
    [[nodiscard]] QDBusConnection connection(const QString &name) const;

Q_SIGNALS:
    void died();

private:
    QTemporaryDir m_folder;
    ChildProcess m_daemon;
    QString m_address;
};

} // namespace NimbraEmulator
