#include "emulationmanager.h"

#include "remotedbusinvokerservice.h"

#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

constexpr qsizetype replyFieldCount = 5;
constexpr qsizetype errorNameField = 3;
constexpr qsizetype errorTextField = 4;

EmulationManager::EmulationManager(QObject *parent)
    : QObject(parent)
{}

RemoteDBusInvokerService *EmulationManager::rdbusinvoker() const
{
    return m_rdbusinvoker;
}

void EmulationManager::setRdbusinvoker(RemoteDBusInvokerService *invoker)
{
    m_rdbusinvoker = invoker;
    connect(invoker, &RemoteDBusInvokerService::webSocketConnected, this,
            &EmulationManager::emulatorConnected);
    connect(invoker, &RemoteDBusInvokerService::replyReceived, this,
            &EmulationManager::processReplyFromEmulator);
    Q_EMIT rdbusinvokerChanged();
}

void EmulationManager::processReplyFromEmulator(const QString &reply)
{
    QStringList fields;
    for (const QStringView field : QStringTokenizer(reply, u':')) {
        fields.append(QString::fromRawData(field.data(), field.size()));
        // Millions of fields would take many times the memory of the line.
        if (fields.size() > replyFieldCount)
            break;
    }
    if (fields.size() != replyFieldCount) {
        Q_EMIT replyFromEmulatorReceived(reply);
        return;
    }
    if (!fields.at(errorNameField).isEmpty()) {
        Q_EMIT replyFromEmulatorReceived(
            u"%1 %2"_s.arg(fields.at(errorNameField), fields.at(errorTextField)));
        return;
    }
    processDBusMethodsReturnValues(fields);
    Q_EMIT replyFromEmulatorReceived(u"OK"_s);
}

void EmulationManager::callDBusMethod(const QString &method, const QString &arguments)
{
    const QString busName = bus();
    const QString service = dbusService();
    const QString objectPath = dbusObject();
    const QString interface = dbusInterface();
    m_rdbusinvoker->callDBusMethod(busName, service, objectPath, interface, method, arguments);
}

QString EmulationManager::request(const QString &method, const QString &arguments) const
{
    return RemoteDBusInvokerService::request(bus(), dbusService(), dbusObject(), dbusInterface(),
                                             method, arguments);
}

void EmulationManager::sendRequest(const QString &request)
{
    m_rdbusinvoker->sendRequest(request);
}

} // namespace EmulationManagement::Internal
