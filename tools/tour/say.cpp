#include "say.h"

#include <cstdio>

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}
