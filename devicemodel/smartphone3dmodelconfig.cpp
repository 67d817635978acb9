#include "smartphone3dmodelconfig.h"

#include "devicemodelfiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

static const QString defaultDeviceName = u"default"_s;
static const QString meshKey = u"mesh"_s;
static const QString textureKey = u"texture"_s;

/// Path of a file in a folder beside the application.
static QString dataPath(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

static QString fileUri(const QString &folder, const QString &fileName)
{
    const QFileInfo file(dataPath(folder) + u'/' + fileName);
    return QUrl::fromLocalFile(file.absoluteFilePath()).toString();
}

static QVariantMap readFileNames(QSettings &file)
{
    return {{meshKey, file.value(meshKey).toString()},
            {textureKey, file.value(textureKey).toString()}};
}

Smartphone3DModelConfig::Smartphone3DModelConfig(QObject *parent)
    : QObject(parent)
{
    initSmartphone3DModelsConfigurations();
    updateSmartphone3DModel(defaultDeviceName);
}

void Smartphone3DModelConfig::initSmartphone3DModelsConfigurations()
{
    m_configurations = readDeviceModelFiles(dataPath(u"configs"_s), &readFileNames);
}

void Smartphone3DModelConfig::updateSmartphone3DModel(const QString &deviceName)
{
    const QString name = m_configurations.contains(deviceName) ? deviceName : defaultDeviceName;
    const QVariantMap configuration = m_configurations[name].toMap();
    m_meshUri = fileUri(u"meshes"_s, configuration.value(meshKey).toString());
    m_textureUri = fileUri(u"textures"_s, configuration.value(textureKey).toString());
    Q_EMIT smartphone3DModelConfigChanged();
}

bool Smartphone3DModelConfig::smartphone3DModelConfigured() const
{
    return !m_meshUri.isEmpty() && !m_textureUri.isEmpty();
}

QString Smartphone3DModelConfig::smartphone3DModelMeshUri() const
{
    return m_meshUri;
}

QString Smartphone3DModelConfig::smartphone3DModelTextureUri() const
{
    return m_textureUri;
}

} // namespace EmulationManagement::Internal
