#include "options.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cstdlib>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

static quint16 toPort(const QString &text)
{
    bool ok = false;
    const quint16 port = text.toUShort(&ok);
    return ok ? port : 0;
}

static std::optional<Forwarding> parseForwarding(const QString &text)
{
    const QStringList fields = text.split(u',');
    if (fields.size() != 4 || fields.at(0).isEmpty())
        return {};

    Forwarding forwarding;
    forwarding.rule = fields.at(0);
    if (fields.at(1) == "udp"_L1)
        forwarding.protocol = Forwarding::Protocol::Udp;
    else if (fields.at(1) != "tcp"_L1)
        return {};
    forwarding.hostPort = toPort(fields.at(2));
    forwarding.port = toPort(fields.at(3));
    if (forwarding.hostPort == 0 || forwarding.port == 0)
        return {};
    return forwarding;
}

std::optional<Options> parseOptions(const QStringList &arguments, QString *error)
{
    const QCommandLineOption data(u"data"_s, u"Keep the emulator's files in <folder>."_s,
                                  u"folder"_s);
    const QCommandLineOption name(u"name"_s, u"The emulator's name."_s, u"name"_s,
                                  u"Nimbra OS Emulator"_s);
    const QCommandLineOption deviceModel(u"device-model"_s, u"The emulated device."_s, u"model"_s,
                                         u"Nimbra Phone"_s);
    const QCommandLineOption address(u"address"_s, u"The emulator's address on the loopback."_s,
                                     u"address"_s, u"127.0.0.2"_s);
    const QCommandLineOption forward(
        u"forward"_s, u"Forward a port of 127.0.0.1: rule,tcp|udp,host port,port (repeatable)."_s,
        u"forwarding"_s);
    const QCommandLineOption sshPort(u"ssh-port"_s, u"The SSH server's port."_s, u"port"_s,
                                     u"2222"_s);
    const QCommandLineOption authorizedKey(
        u"authorized-key"_s, u"Let the owner of this public key log in."_s, u"file"_s);
    const QCommandLineOption package(
        u"package"_s, u"Carry this package instead of the default ones (repeatable)."_s, u"name"_s);
    const QCommandLineOption withoutPackage(
        u"without-package"_s, u"Do not carry this package (repeatable)."_s, u"name"_s);
    const QCommandLineOption headless(u"headless"_s, u"Show no window."_s);
    const QCommandLineOption stopWithStdin(u"stop-with-stdin"_s,
                                           u"End when standard input ends."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"A local Nimbra OS emulator. Its journal goes to standard output, a line an event."_s);
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions({data, name, deviceModel, address, forward, sshPort, authorizedKey, package,
                       withoutPackage, headless, stopWithStdin});

    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return {};
    }
    if (parser.isSet(help))
        parser.showHelp(EXIT_SUCCESS);

    Options options;
    if (!parser.positionalArguments().isEmpty()) {
        *error = u"Unexpected argument \"%1\"."_s.arg(parser.positionalArguments().constFirst());
        return {};
    }
    if (parser.value(data).isEmpty()) {
        *error = u"--data FOLDER is missing."_s;
        return {};
    }
    options.data = QFileInfo(parser.value(data)).absoluteFilePath();
    options.name = parser.value(name);
    options.deviceModel = parser.value(deviceModel);

    // The services have no login, so only this machine may reach them.
    options.address = QHostAddress(parser.value(address));
    if (!options.address.isLoopback()) {
        *error = u"--address %1 is not an address of the loopback."_s.arg(parser.value(address));
        return {};
    }
    for (const QString &text : parser.values(forward)) {
        const std::optional<Forwarding> forwarding = parseForwarding(text);
        if (!forwarding) {
            *error = u"--forward %1 is not of the form rule,tcp|udp,host port,port."_s.arg(text);
            return {};
        }
        options.forwardings.append(*forwarding);
    }
    options.sshPort = toPort(parser.value(sshPort));
    if (options.sshPort == 0) {
        *error = u"--ssh-port %1 is not a port."_s.arg(parser.value(sshPort));
        return {};
    }
    if (parser.isSet(authorizedKey)) {
        options.authorizedKey = QFileInfo(parser.value(authorizedKey)).absoluteFilePath();
        if (!QFileInfo(options.authorizedKey).isReadable()) {
            *error = u"The public key %1 cannot be read."_s.arg(options.authorizedKey);
            return {};
        }
    }
    options.packages = parser.values(package);
    options.withoutPackages = parser.values(withoutPackage);
    options.headless = parser.isSet(headless);
    options.stopWithStandardInput = parser.isSet(stopWithStdin);
    return options;
}

} // namespace NimbraEmulator
