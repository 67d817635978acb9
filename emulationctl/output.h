#pragma once

#include <QString>

class QJsonObject;

namespace EmulationCtl {

/// Writes a line to standard output.
void print(const QString &line);
/// Writes a JSON object to standard output, as one line.
void print(const QJsonObject &object);
/// Whether standard output has taken all lines.
[[nodiscard]] bool isOutputWritten();
/// Writes a line to standard error, after the program's name.
void complain(const QString &message);
/// Writes a line to standard error as it is.
void note(const QString &line);

} // namespace EmulationCtl
