#pragma once

#include <QString>

#include <chrono>

namespace QSsh {

/// How to log in to an SSH server. The only method is a public key.
struct SshConnectionParameters
{
    QString host = {};
    quint16 port = 22;
    QString userName = {};
    QString privateKeyFile = {};
    /// The key of a host that is not in this file yet is accepted and added to it.
    QString knownHostsFile = {};
    /// Limit for the connection and the server's greeting.
    std::chrono::seconds timeout{10};

    friend bool operator==(const SshConnectionParameters &, const SshConnectionParameters &)
        = default;
};

} // namespace QSsh
