#include "smartphone3dmodelconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>

namespace EmulationManagement::Internal {

static const QString defaultDeviceName = QStringLiteral("default");
static const QString deviceNameKey = QStringLiteral("device-name");
static const QString meshKey = QStringLiteral("mesh");
static const QString textureKey = QStringLiteral("texture");
static const QString dataPath; // the files lie beside the application itself

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
        QStringLiteral("%1/%2/configs").arg(QCoreApplication::applicationDirPath(), dataPath)));
    const QStringList fileNames
        = directory.entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Unsorted);
    for (const QString &fileName : fileNames) {
        const QSettings file(QStringLiteral("%1/%2").arg(directory.path(), fileName),
                             QSettings::IniFormat);
        m_configurations.insert(file.value(deviceNameKey).toString(),
                                QVariantMap{{meshKey, file.value(meshKey).toString()},
                                            {textureKey, file.value(textureKey).toString()}});
    }
}

void Smartphone3DModelConfig::updateSmartphone3DModel(const QString &deviceName)
{
    const QString name = m_configurations.contains(deviceName) ? deviceName : defaultDeviceName;
    const QVariantMap configuration = m_configurations[name].toMap();
    m_meshUri = fileUri(QStringLiteral("%1/%2/meshes/%3"), configuration.value(meshKey).toString());
    m_textureUri
        = fileUri(QStringLiteral("%1/%2/textures/%3"), configuration.value(textureKey).toString());
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
