#include "smartphone3dmodelconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

static const QString defaultDeviceName = u"default"_s;
static const QString deviceNameKey = u"device-name"_s;
static const QString meshKey = u"mesh"_s;
static const QString textureKey = u"texture"_s;
static const QString dataPath; // empty: the files are beside the application

static QString fileUri(const QString &pathTemplate, const QString &fileName)
{
    const QString path
        = pathTemplate.arg(QCoreApplication::applicationDirPath(), dataPath, fileName);
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toString();
}

Smartphone3DModelConfig::Smartphone3DModelConfig(QObject *parent)
    : QObject(parent)
{
    initSmartphone3DModelsConfigurations();
    updateSmartphone3DModel(defaultDeviceName);
}

void Smartphone3DModelConfig::initSmartphone3DModelsConfigurations()
{
    m_configurations.clear();
    const QDir directory(QDir::fromNativeSeparators(
        u"%1/%2/configs"_s.arg(QCoreApplication::applicationDirPath(), dataPath)));
    const QStringList fileNames = directory.entryList({u"*.ini"_s}, QDir::Files, QDir::Unsorted);
    for (const QString &fileName : fileNames) {
        const QSettings file(u"%1/%2"_s.arg(directory.path(), fileName), QSettings::IniFormat);
        m_configurations.insert(file.value(deviceNameKey).toString(),
                                QVariantMap{{meshKey, file.value(meshKey).toString()},
                                            {textureKey, file.value(textureKey).toString()}});
    }
}

void Smartphone3DModelConfig::updateSmartphone3DModel(const QString &deviceName)
{
    const QString name = m_configurations.contains(deviceName) ? deviceName : defaultDeviceName;
    const QVariantMap configuration = m_configurations[name].toMap();
    m_meshUri = fileUri(u"%1/%2/meshes/%3"_s, configuration.value(meshKey).toString());
    m_textureUri = fileUri(u"%1/%2/textures/%3"_s, configuration.value(textureKey).toString());
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
