#include "output.h"

#include <QJsonDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace EmulationCtl {

// Flushes each line, because a script may read them while the program runs.
static void write(std::FILE *file, const QByteArray &line)
{
    std::fwrite(line.constData(), 1, std::size_t(line.size()), file);
    std::fputc('\n', file);
    std::fflush(file);
}

void print(const QString &line)
{
    write(stdout, line.toLocal8Bit());
}

void print(const QJsonObject &object)
{
    write(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

bool isOutputWritten()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void complain(const QString &message)
{
    note(u"emulationctl: "_s + message);
}

void note(const QString &line)
{
    write(stderr, line.toLocal8Bit());
}

} // namespace EmulationCtl
