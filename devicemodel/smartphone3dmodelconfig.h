#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

namespace EmulationManagement::Internal {

/*!
 * Chooses the mesh and the texture that represent the emulated device.
 *
 * INI files in the folder "configs" beside the IDE map the name of a device model ("device-name")
 * to a file in "meshes" and one in "textures". A device model without its own file gets the files
 * of "default". The folder is read once. Missing files are not reported.
 */
class Smartphone3DModelConfig : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString smartphone3DModelMeshUri READ smartphone3DModelMeshUri
                   NOTIFY smartphone3DModelMeshUriChanged)
    Q_PROPERTY(QString smartphone3DModelTextureUri READ smartphone3DModelTextureUri
                   NOTIFY smartphone3DModelTextureUriChanged)

public:
    explicit Smartphone3DModelConfig(QObject *parent = nullptr);

    /// Reads the INI files. If two name the same device model, the one listed later wins.
    void initSmartphone3DModelsConfigurations();
    /// Selects the files of a device model by its exact name.
    void updateSmartphone3DModel(const QString &deviceName);

    /// True when both URIs are set, even if the files do not exist.
    Q_INVOKABLE bool smartphone3DModelConfigured() const;

    /// URL of the mesh file.
    [[nodiscard]] QString smartphone3DModelMeshUri() const;
    /// URL of the texture image.
    [[nodiscard]] QString smartphone3DModelTextureUri() const;

Q_SIGNALS:
    /// Emitted at each update, unlike the two signals below: QML must read both URIs again then.
    void smartphone3DModelConfigChanged();
    void smartphone3DModelMeshUriChanged();
    void smartphone3DModelTextureUriChanged();

private:
    QMap<QString, QVariant> m_configurations;
    QString m_meshUri;
    QString m_textureUri;
};

} // namespace EmulationManagement::Internal
