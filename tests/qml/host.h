#pragma once

#include <camera/cameraemulationmanager.h>

#include <devicemodel/smartphone3dmodelconfig.h>

#include <link/remotedbusinvokerservice.h>

#include <location/gpsemulationmanager.h>

#include <sensors/sensorsemulationmanager.h>

#include <virtualcameras.h>

#include <QMessageBox>
#include <QObject>
#include <QStringList>

class QQmlContext;

namespace EmulationManagement::Internal {

/*!
 * What the plugin is to the pages: gives them the real managers, with nothing at the other end.
 *
 * The tests see it as "host". It lets them do what pages cannot, and answers the warnings.
 */
class Host : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QMessageBox::StandardButton answer MEMBER m_answer)
    Q_PROPERTY(bool doNotShowAgain MEMBER m_doNotShowAgain)
    Q_PROPERTY(QString meanwhile MEMBER m_meanwhile)
    /// The warnings that were shown since reset().
    Q_PROPERTY(QStringList questions MEMBER m_questions)

public:
    explicit Host(QObject *parent = nullptr);

    void setContextProperties(QQmlContext *context);

    /// Notes a question. Returns its answer: none until a test chooses one.
    QMessageBox::StandardButton ask(const QString &question);
    /// The state of the box "Do not show again" in each warning.
    [[nodiscard]] bool doNotShowAgain() const { return m_doNotShowAgain; }

    /// Undoes what an earlier test did to the settings, the sensors and the answer.
    Q_INVOKABLE void reset();
    /// Handles a line of the relay.
    Q_INVOKABLE void receive(const QString &reply);
    Q_INVOKABLE void setSensorAvailable(const QString &name, bool available);
    /// Shows a track whose points have this interval, in milliseconds.
    Q_INVOKABLE void fillTrack(EmulationManagement::Internal::TrackModel *track, int points,
                               double interval);
    /// The name that a screen reader speaks.
    Q_INVOKABLE [[nodiscard]] QString accessibleName(QObject *item) const;
    /// The value that a screen reader speaks.
    Q_INVOKABLE [[nodiscard]] QString accessibleValue(QObject *item) const;
    /// Plugs cameras in and out, see VirtualCameras.
    Q_INVOKABLE void setCameras(const QStringList &cameras);

private:
    RemoteDBusInvokerService m_remoteDBusInvokerService;
    GPSEmulationManager m_gpsEmulationManager;
    SensorsEmulationManager m_sensorsEmulationManager;
    Smartphone3DModelConfig m_smartphone3DModelConfig;
    VirtualCameras m_cameras;
    CameraEmulationManager m_cameraEmulationManager;
    QStringList m_questions;
    QMessageBox::StandardButton m_answer = QMessageBox::NoButton;
    bool m_doNotShowAgain = false;
    QString m_meanwhile; // a line of the relay that comes while a question is open
};

} // namespace EmulationManagement::Internal
