#pragma once

#include <QString>

/// Prints a line about the tour's progress and flushes it.
void say(const QString &line);
