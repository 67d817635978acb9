#pragma once

#include <QByteArrayList>
#include <QSaveFile>
#include <QTemporaryDir>

/// The host's cameras. Each is a line as in cameras.txt. One object at a time.
class VirtualCameras
{
public:
    explicit VirtualCameras(const QByteArrayList &cameras = {})
    {
        set(cameras);
        qputenv("VIRTUAL_CAMERAS", path().toLocal8Bit());
    }

    /// Plugs cameras in and out. A camera monitor learns of it by and by.
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
