#pragma once

#include <QString>

#include <optional>

namespace Ravik {

/// A port of this computer that is forwarded to a port of an emulator.
struct PortForwarding
{
    QString ruleName;
    QString protocol; // "tcp" or "udp"
    quint16 hostPort = 0;
    quint16 emulatorPort = 0;

    /// Whether the rule can be written as text and carried out.
    [[nodiscard]] bool isValid() const;
    /// True when both rules have the same name or the same host port.
    [[nodiscard]] bool conflictsWith(const PortForwarding &other) const;

    /// "name,protocol,host port,emulator port", as in the settings and on the command line.
    [[nodiscard]] QString toString() const;
    /// Empty when \a text is not a valid rule.
    static std::optional<PortForwarding> fromString(const QString &text);
};

} // namespace Ravik
