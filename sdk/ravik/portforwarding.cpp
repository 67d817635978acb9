#include "portforwarding.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Ravik {

bool PortForwarding::isValid() const
{
    return !ruleName.isEmpty() && !ruleName.contains(u',')
           && (protocol == "tcp"_L1 || protocol == "udp"_L1) && hostPort != 0 && emulatorPort != 0;
}

bool PortForwarding::conflictsWith(const PortForwarding &other) const
{
    return ruleName == other.ruleName || hostPort == other.hostPort;
}

QString PortForwarding::toString() const
{
    return u"%1,%2,%3,%4"_s.arg(ruleName, protocol, QString::number(hostPort),
                                QString::number(emulatorPort));
}

std::optional<PortForwarding> PortForwarding::fromString(const QString &text)
{
    const QStringList fields = text.split(u',');
    if (fields.size() != 4)
        return {};
    // toUShort() returns 0 for text that is no port, and 0 is not a valid port either.
    const PortForwarding forwarding{.ruleName = fields[0],
                                    .protocol = fields[1],
                                    .hostPort = fields[2].toUShort(),
                                    .emulatorPort = fields[3].toUShort()};
    return forwarding.isValid() ? std::optional(forwarding) : std::nullopt;
}

} // namespace Ravik
