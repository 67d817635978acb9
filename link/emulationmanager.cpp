#include "emulationmanager.h"

#include "remotedbusinvokerservice.h"
#include "reply.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

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

void EmulationManager::setSuspended(bool suspended)
{
    m_suspended = suspended;
    Q_EMIT suspendedChanged();
}

void EmulationManager::processReplyFromEmulator(const QString &reply)
{
    const QStringList fields = replyFields(reply);
    if (fields.isEmpty()) {
        Q_EMIT replyFromEmulatorReceived(reply);
        return;
    }
    if (!fields.at(ReplyErrorName).isEmpty()) {
        Q_EMIT replyFromEmulatorReceived(
            replyError(fields.at(ReplyErrorName), fields.at(ReplyErrorText)));
        return;
    }
    processDBusMethodsReturnValues(fields);
    Q_EMIT replyFromEmulatorReceived(u"OK"_s);
}

void EmulationManager::callDBusMethod(const QString &method, const QString &arguments)
{
    if (m_suspended)
        return;
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
    if (!m_suspended)
        m_rdbusinvoker->sendRequest(request);
}

} // namespace EmulationManagement::Internal
