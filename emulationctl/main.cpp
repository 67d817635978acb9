#include "calls.h"
#include "camerastream.h"
#include "commandline.h"
#include "output.h"
#include "recordingcommands.h"
#include "session.h"
#include "trackplayback.h"

#include <QCoreApplication>
#include <QLocale>

using namespace EmulationCtl;
using namespace Qt::StringLiterals;

static int runCalls(const CommandLine &line)
{
    QString error;
    const std::optional<Calls> calls = callsOf(line, &error);
    if (!calls && error.isEmpty())
        return Success;
    if (!calls) {
        complain(error);
        return WrongUse;
    }
    Session session(line.general);
    QObject::connect(&session, &Session::connected, &session, [&] {
        (*calls)(session);
        session.close();
    });
    QObject::connect(&session, &Session::ended, QCoreApplication::instance(),
                     &QCoreApplication::exit, Qt::QueuedConnection);
    session.open();
    return QCoreApplication::exec();
}

static int runCommand()
{
    ExitStatus status = Success;
    const std::optional<CommandLine> line
        = parseCommandLine(QCoreApplication::arguments(), &status);
    if (!line)
        return status;
    QString error;
    std::optional<int> result;
    if (line->command == u"track"_s)
        result = playTrack(*line, &error);
    else if (line->command == u"camera"_s || line->command == u"video"_s)
        result = streamPictures(*line, &error);
    else if (line->command == u"play"_s)
        result = playRecording(*line, &error);
    else if (line->command == u"info"_s)
        return describeRecording(*line);
    else if (line->command == u"move"_s)
        result = moveFile(*line, &error);
    else
        return runCalls(*line);
    if (result)
        return *result;
    complain(error + u'\n' + usage(line->command));
    return WrongUse;
}

int main(int argc, char **argv)
{
    // Qt would warn of each other locale without UTF-8, which scripts often have.
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"emulationctl"_s);
    QLocale::setDefault(QLocale::c());
    const int status = runCommand();
    if (isOutputWritten())
        return status;
    complain(u"The output cannot be written."_s);
    return status == Success ? WrongUse : status;
}
