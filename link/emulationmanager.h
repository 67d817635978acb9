#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace EmulationManagement::Internal {

class RemoteDBusInvokerService;

/*!
 * Base of the managers that drive a D-Bus service inside the emulator.
 *
 * A subclass names its service; the base sends its calls through the invoker and turns every
 * reply line into a success or an error text for the pages. Each manager gets all replies,
 * whichever manager called, and must ignore those that are not its own.
 */
class EmulationManager : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("link/remotedbusinvokerservice.h")
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
     * returned value and two empty texts.
     */
    virtual void processDBusMethodsReturnValues(const QStringList &values) = 0;

    [[nodiscard]] RemoteDBusInvokerService *rdbusinvoker() const;
    /*!
     * Sets the invoker, which must outlive this object, and listens to it.
     *
     * Each call listens once more, also to an invoker that was set before: every reply and every
     * connection is then handled as often as the invoker was set.
     */
    void setRdbusinvoker(RemoteDBusInvokerService *invoker);

    /*!
     * Handles the reply line "method:arguments:returned value:error name:error text".
     *
     * With an empty error name the subclass gets the fields and the pages get "OK". Otherwise the
     * pages get "error name error text". A line of more or fewer fields goes to the pages as it is.
     */
    void processReplyFromEmulator(const QString &reply);

Q_SIGNALS:
    void rdbusinvokerChanged();
    void emulatorConnected();
    /// "OK", or what the user should read.
    void replyFromEmulatorReceived(const QString &reply);

protected:
    /*!
     * Calls \a method of the subclass's service.
     *
     * \a arguments are tokens "type:value" separated by single spaces, with the types int32,
     * double, boolean (1 or 0), string and "array:array:double:" (points separated by ";", their
     * numbers by ","). No value may hold a space: the relay splits the arguments on spaces.
     * An invoker must have been set.
     */
    void callDBusMethod(const QString &method, const QString &arguments);

private:
    RemoteDBusInvokerService *m_rdbusinvoker = nullptr;
};

} // namespace EmulationManagement::Internal
