#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace NimbraEmulator {

/// A port of the host that is forwarded to a port of the emulator.
struct Forwarding
{
    enum class Protocol { Tcp, Udp };

    QString rule;
    Protocol protocol = Protocol::Tcp;
    quint16 hostPort = 0;
    quint16 port = 0; ///< in the emulator
};

/// The values of the command line.
struct Options
{
    QString data; ///< absolute path of a folder that is kept between runs
    QString name;
    QString deviceModel;
    QHostAddress address;
    QList<Forwarding> forwardings;
    quint16 sshPort = 0;
    QString authorizedKey; ///< public key file; empty: nobody may log in
    QStringList packages;  ///< empty: the default list
    QStringList withoutPackages;
    bool headless = false;
    bool stopWithStandardInput = false;
};

/// Parses \a arguments, which begin with the program's name. Returns nothing for invalid ones and
/// puts one sentence into \a error. "--help" prints the options and ends the program.
[[nodiscard]] std::optional<Options> parseOptions(const QStringList &arguments, QString *error);

} // namespace NimbraEmulator
