#include "temporarysdk.h"

#include <ravik/emulator.h>
#include <ravik/execasynchronous.h>
#include <ravik/virtualmachine.h>

#include <QFile>
#include <QLocalSocket>
#include <QTest>

namespace TestSupport {

using namespace Qt::StringLiterals;

TemporarySdk::TemporarySdk(const QByteArray &settings)
{
    QFile file(m_folder.filePath(u"sdk.ini"_s));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The settings cannot be written");
    file.write("[General]\nheadless=true\nemulatorProgram=" EMULATOR_PROGRAM "\n" + settings);
    file.close();
    reopen();
}

void TemporarySdk::reopen()
{
    m_sdk.reset(); // a process has one SDK at a time
    m_sdk = std::make_unique<Ravik::HostSdk>(m_folder.filePath(u"sdk.ini"_s));
    m_sdk->listEmulators();
}

Ravik::VirtualMachine &TemporarySdk::machine()
{
    return *m_sdk->emulators().constFirst()->virtualMachine();
}

bool TemporarySdk::start()
{
    return Ravik::execAsynchronous([this](const QObject *context, const auto &callback) {
        machine().connectTo({}, context, callback);
    });
}

bool TemporarySdk::addPortForwarding(const QString &rule, const QString &protocol,
                                     unsigned short hostPort, unsigned short emulatorPort)
{
    return Ravik::execAsynchronous([&](const QObject *context, const auto &callback) {
        machine().addPortForwarding(rule, protocol, hostPort, emulatorPort, context, callback);
    });
}

QString TemporarySdk::requestFault(const QByteArray &command)
{
    QLocalSocket control;
    control.connectToServer(dataFile(u"control"_s));
    control.write(command + '\n');
    const auto isAnswered = [&control] {
        return control.canReadLine() || control.state() == QLocalSocket::UnconnectedState;
    };
    return QTest::qWaitFor(isAnswered) ? QString::fromUtf8(control.readLine()).trimmed()
                                       : u"no answer"_s;
}

QByteArray TemporarySdk::journal() const
{
    QFile file(dataFile(u"journal.jsonl"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString TemporarySdk::dataFile(const QString &name) const
{
    return m_sdk->dataFolder(0) + u'/' + name;
}

} // namespace TestSupport
