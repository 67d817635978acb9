#include "host.h"

#include <extensionsystem/pluginmanager.h>

#include <utils/qtcsettings.h>

#include <QColor>
#include <QQmlContext>

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
        {QStringLiteral("host"), QVariant::fromValue(this)},
        {QStringLiteral("mediaUrl"), QStringLiteral(MEDIA_URL)},
        {QStringLiteral("gpsEmulationManager"), QVariant::fromValue(&m_gpsEmulationManager)},
        {QStringLiteral("sensorsEmulationManager"),
         QVariant::fromValue(&m_sensorsEmulationManager)},
        {QStringLiteral("smartphone3DModelConfig"),
         QVariant::fromValue(&m_smartphone3DModelConfig)},
        {QStringLiteral("cameraEmulationManager"), QVariant::fromValue(&m_cameraEmulationManager)},
        {QStringLiteral("themeBackgroundColorNormal"), QColor(Qt::lightGray)},
        {QStringLiteral("themeHighlightColor"), QColor(Qt::blue)},
        {QStringLiteral("themeSeparatorColor"), QColor(Qt::darkGray)},
        {QStringLiteral("darkUserInterface"), false},
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

void Host::setCameras(const QStringList &cameras)
{
    m_cameras.set({cameras.join(u'\n').toUtf8()});
}

} // namespace EmulationManagement::Internal
