#pragma once

#include <QString>

#include <optional>

namespace Ravik {

/// A port of this computer that leads to a port of an emulator.
struct PortForwarding
{
    QString ruleName;
    QString protocol; // "tcp" or "udp"
    quint16 hostPort = 0;
    quint16 emulatorPort = 0;

    /// Whether the rule can be written as text, and be obeyed.
    [[nodiscard]] bool isValid() const;
    /// Neither the name nor the host port may stand in two rules.
    [[nodiscard]] bool conflictsWith(const PortForwarding &other) const;

    /// "name,protocol,host port,emulator port", as in the settings and for the emulator.
    [[nodiscard]] QString toString() const;
    /// Empty when \a text is not a valid rule.
    static std::optional<PortForwarding> fromString(const QString &text);
};

} // namespace Ravik
