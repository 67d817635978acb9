#include "emulator.h"
#include "emulatorwindow.h"
#include "options.h"
#include "sshcommand.h"
#include "stoprequest.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>

using namespace NimbraEmulator;
using namespace Qt::StringLiterals;

static int fail(const QString &error)
{
    std::fprintf(stderr, "nimbra-emulator: %s\n", qPrintable(error));
    return EXIT_FAILURE;
}

// Looks at the raw arguments: --headless must work without a display, but the command line can be
// parsed only after the application exists.
static std::unique_ptr<QCoreApplication> createApplication(int &argc, char **argv)
{
    const auto needsNoDisplay = [](std::string_view argument) {
        return argument == "--headless" || argument == "--help" || argument == "-h";
    };
    if (std::ranges::any_of(std::span(argv, static_cast<size_t>(argc)), needsNoDisplay))
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

static int runEmulator(const Options &options)
{
    StopRequest stopRequest;
    Emulator emulator(options);
    QObject::connect(&stopRequest, &StopRequest::requested, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    QObject::connect(&emulator, &Emulator::failed, QCoreApplication::instance(),
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });

    QString error;
    if (!emulator.start(&error))
        return fail(error);
    std::unique_ptr<EmulatorWindow> window;
    if (!options.headless) {
        window = std::make_unique<EmulatorWindow>(options.name, options.deviceModel,
                                                  emulator.sensors(), emulator.location(),
                                                  emulator.video());
        window->show();
    }
    if (options.stopWithStandardInput)
        stopRequest.watchStandardInput();
    return QCoreApplication::exec();
}

int main(int argc, char **argv)
{
    // The SSH server starts this program for every command; see SshCommandServer.
    if (argc == 3 && std::string_view(argv[1]) == "--answer-ssh") {
        const QCoreApplication application(argc, argv);
        return runSshCommand(QString::fromLocal8Bit(argv[2]));
    }

    const std::unique_ptr<QCoreApplication> application = createApplication(argc, argv);
    QString error;
    const std::optional<Options> options = parseOptions(QCoreApplication::arguments(), &error);
    if (!options)
        return fail(error);
    return runEmulator(*options);
}
