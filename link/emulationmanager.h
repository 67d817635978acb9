#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace EmulationManagement::Internal {

class RemoteDBusInvokerService;

/*!
 * Base of the managers that drive a D-Bus service inside the emulator.
 *
 * A subclass names its service. The base sends calls through the invoker and turns each reply line
 * into "OK" or an error text for the pages. Every manager receives the replies to the calls of all
 * managers, and must ignore replies to methods of other services.
 */
class EmulationManager : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("link/remotedbusinvokerservice.h")
    /// Whether a recording plays, which the calls of the window would disturb.
    Q_PROPERTY(bool suspended READ isSuspended WRITE setSuspended NOTIFY suspendedChanged)
    Q_PROPERTY(EmulationManagement::Internal::RemoteDBusInvokerService *rdbusinvoker
                   READ rdbusinvoker WRITE setRdbusinvoker NOTIFY rdbusinvokerChanged)

public:
    explicit EmulationManager(QObject *parent = nullptr);

    virtual QString bus() const = 0;
    virtual QString dbusService() const = 0;
    virtual QString dbusObject() const = 0;
    virtual QString dbusInterface() const = 0;
    /*!
     * Handles the five fields of a successful reply: method, its arguments joined with "|",
     * returned value and two empty texts. They are parts of the line and not copies, because a
     * track is long: a field that is kept must be copied.
     */
    virtual void processDBusMethodsReturnValues(const QStringList &values) = 0;

    [[nodiscard]] RemoteDBusInvokerService *rdbusinvoker() const;
    /*!
     * Sets the invoker, which must outlive this object, and listens to it.
     *
     * Each call adds connections, even if the invoker is the same: after two calls, every reply and
     * every new connection is handled twice.
     */
    void setRdbusinvoker(RemoteDBusInvokerService *invoker);

    /// Whether calls are dropped, because another source feeds the emulator.
    [[nodiscard]] bool isSuspended() const { return m_suspended; }
    void setSuspended(bool suspended);

    /*!
     * Handles the reply line "method:arguments:returned value:error name:error text".
     *
     * If the error name is empty, the subclass gets the fields and the pages get "OK". Otherwise
     * the pages get "error name error text". A line with another number of fields goes to the pages
     * unchanged.
     */
    void processReplyFromEmulator(const QString &reply);

Q_SIGNALS:
    void rdbusinvokerChanged();
    void suspendedChanged();
    void emulatorConnected();
    /// "OK", or an error text for the user.
    void replyFromEmulatorReceived(const QString &reply);

protected:
    /*!
     * Calls \a method of the subclass's service.
     *
     * \a arguments are written by the functions of argumentencoding.h, or empty. An invoker must
     * have been set.
     */
    void callDBusMethod(const QString &method, const QString &arguments);
    /// Returns the request of such a call, which sendRequest() sends.
    [[nodiscard]] QString request(const QString &method, const QString &arguments) const;
    void sendRequest(const QString &request);

private:
    RemoteDBusInvokerService *m_rdbusinvoker = nullptr;
    bool m_suspended = false;
};

} // namespace EmulationManagement::Internal
