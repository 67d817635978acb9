#pragma once

#include "idesettings.h"
#include "recordingrelay.h"

#include <link/remotedbusinvokerservice.h>

#include <QJSEngine>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>

namespace TestSupport {

using namespace Qt::StringLiterals;

/// A manager of the D-Bus service \a service, connected to a recording relay. The manager has sent
/// nothing yet, because its link was already connected when it got it.
template<typename Manager>
struct ConnectedManager
{
    explicit ConnectedManager(const QString &service)
        : address(u"system %1 /%2 %1 "_s.arg(service, QString(service).replace(u'.', u'/')))
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // decimal comma
        if (!relay.connectLink(link))
            qFatal("The relay cannot be reached");
        manager.setRdbusinvoker(&link);
        QJSEngine::setObjectOwnership(&manager, QJSEngine::CppOwnership);
        engine.globalObject().setProperty(u"manager"_s, engine.newQObject(&manager));
    }

    /// Runs a script in which `manager` is the manager, as in a page.
    QString evaluate(const QString &script) { return engine.evaluate(script).toString(); }

    [[nodiscard]] bool reconnect()
    {
        QSignalSpy connected(&manager, &Manager::emulatorConnected);
        relay.dropClients();
        return connected.wait();
    }

    /// Returns the new requests as "method arguments", separated by ";". A request to an address
    /// that is not the manager's keeps its address.
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
