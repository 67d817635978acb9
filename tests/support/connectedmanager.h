#pragma once

#include "idesettings.h"
#include "recordingrelay.h"

#include <link/remotedbusinvokerservice.h>

#include <QJSEngine>
#include <QSignalSpy>
#include <QTest>

#include <span>

namespace TestSupport {

using namespace Qt::StringLiterals;

/// Adds a row for each of the texts "call > what follows > …", named after the call, with its
/// parts.
inline void addCallRows(std::span<const char *const> calls)
{
    QTest::addColumn<QStringList>("row");
    for (const char *call : calls) {
        const QStringList row = QString::fromLatin1(call).split(u" > "_s);
        QTest::newRow(qPrintable(row.constFirst())) << row;
    }
}

/// A manager of the D-Bus service \a service that is connected to a recording relay and was not
/// told so: it has sent nothing yet.
template<typename Manager>
struct ConnectedManager
{
    explicit ConnectedManager(const QString &service)
        : address(u"system %1 /%2 %1 "_s.arg(service, QString(service).replace(u'.', u'/')))
    {
        if (!relay.connectLink(link))
            qFatal("The relay cannot be reached");
        manager.setRdbusinvoker(&link);
        QJSEngine::setObjectOwnership(&manager, QJSEngine::CppOwnership);
        engine.globalObject().setProperty(u"manager"_s, engine.newQObject(&manager));
    }

    /// Runs a script that knows the manager by this name, as a page would.
    QString evaluate(const QString &script) { return engine.evaluate(script).toString(); }

    [[nodiscard]] bool reconnect()
    {
        QSignalSpy connected(&manager, &Manager::emulatorConnected);
        relay.dropClients();
        return connected.wait();
    }

    /// Takes the requests as "method arguments" with ";" in between. One with another address than
    /// the manager's keeps it.
    [[nodiscard]] QString takeRequests()
    {
        QStringList requests = relay.takeRequests(link);
        for (QString &request : requests) {
            if (request.startsWith(address))
                request.remove(0, address.size());
        }
        return requests.join(u';');
    }

    QString address;
    IdeSettings settings;
    RecordingRelay relay;
    EmulationManagement::Internal::RemoteDBusInvokerService link;
    Manager manager;
    QJSEngine engine;
};

} // namespace TestSupport
