#include "host.h"

#include <extensionsystem/pluginmanager.h>

#include <utils/qtcsettings.h>

#include <QAccessible>
#include <QColor>
#include <QQmlContext>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

Host::Host(QObject *parent)
    : QObject(parent)
{
    m_gpsEmulationManager.setRdbusinvoker(&m_remoteDBusInvokerService);
    m_sensorsEmulationManager.setRdbusinvoker(&m_remoteDBusInvokerService);
}

void Host::setContextProperties(QQmlContext *context)
{
    context->setContextProperties({
        {u"host"_s, QVariant::fromValue(this)},
        {u"mediaUrl"_s, QString::fromUtf8(MEDIA_URL)},
        {u"gpsEmulationManager"_s, QVariant::fromValue(&m_gpsEmulationManager)},
        {u"sensorsEmulationManager"_s, QVariant::fromValue(&m_sensorsEmulationManager)},
        {u"smartphone3DModelConfig"_s, QVariant::fromValue(&m_smartphone3DModelConfig)},
        {u"cameraEmulationManager"_s, QVariant::fromValue(&m_cameraEmulationManager)},
        {u"themeBackgroundColorNormal"_s, QColor(Qt::lightGray)},
        {u"themeHighlightColor"_s, QColor(Qt::blue)},
        {u"themeSeparatorColor"_s, QColor(Qt::darkGray)},
        {u"darkUserInterface"_s, false},
    });
}

QMessageBox::StandardButton Host::ask(const QString &question)
{
    m_questions.append(question);
    receive(m_meanwhile);
    return m_answer;
}

void Host::reset()
{
    ExtensionSystem::PluginManager::settings()->clear();
    m_sensorsEmulationManager.setDefaultValues();
    m_sensorsEmulationManager.makeAllSensorsAvailable();
    m_questions.clear();
    m_answer = QMessageBox::NoButton;
    m_doNotShowAgain = false;
    m_meanwhile.clear();
}

void Host::receive(const QString &reply)
{
    m_sensorsEmulationManager.processReplyFromEmulator(reply);
}

void Host::setSensorAvailable(const QString &name, bool available)
{
    m_sensorsEmulationManager.setSensorAvailable(name, available);
}

void Host::fillTrack(TrackModel *track, int points, double interval)
{
    track->setTrack({QList<TrackPoint>(points, {.interval = interval}), {}});
}

QString Host::accessibleName(QObject *item) const
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    const QString name = accessible ? accessible->text(QAccessible::Name) : QString();
    // The platform of tests has no screen reader, so controls do not set their text as their name.
    return name.isEmpty() ? item->property("text").toString() : name;
}

QString Host::accessibleValue(QObject *item) const
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    if (!accessible)
        return {};
    if (const QAccessibleValueInterface *number = accessible->valueInterface()) {
        return u"%1 of %2 to %3"_s.arg(number->currentValue().toString(),
                                       number->minimumValue().toString(),
                                       number->maximumValue().toString());
    }
    if (accessible->state().selectable)
        return accessible->state().selected ? u"selected"_s : u"not selected"_s;
    return accessible->text(QAccessible::Value) + accessible->text(QAccessible::Description);
}

void Host::setCameras(const QStringList &cameras)
{
    m_cameras.set({cameras.join(u'\n').toUtf8()});
}

} // namespace EmulationManagement::Internal
