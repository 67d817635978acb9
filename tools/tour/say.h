#pragma once

#include <QString>

/// Prints a line of what the tour does, at once.
void say(const QString &line);
