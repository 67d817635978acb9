#pragma once

#include <QByteArrayList>
#include <QSaveFile>
#include <QTemporaryDir>

/// Plugs virtual cameras in and out. A camera is a line as in cameras.txt. Only one object may
/// exist at a time.
class VirtualCameras
{
public:
    explicit VirtualCameras(const QByteArrayList &cameras = {})
    {
        set(cameras);
        qputenv("VIRTUAL_CAMERAS", path().toLocal8Bit());
    }

    /// Replaces the cameras. A camera monitor notices the change shortly afterwards.
    void set(const QByteArrayList &cameras)
    {
        QSaveFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(cameras.join('\n')) < 0
            || !file.commit())
            qFatal("The cameras cannot be written");
    }

private:
    [[nodiscard]] QString path() const
    {
        using namespace Qt::StringLiterals;
        return m_folder.filePath(u"cameras"_s);
    }

    QTemporaryDir m_folder;
};
