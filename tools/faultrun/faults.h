#pragma once

#include "randomaction.h"

#include <virtualcameras.h>

#include <QTemporaryDir>

#include <memory>

/// Breaks what the plugin depends on: the emulator, the ports, the disk, the settings, the video
/// file and the cameras.
class Faults
{
public:
    explicit Faults(QRandomGenerator &random);

    [[nodiscard]] RandomAction next();
    /// Ends all faults except those that the emulator makes.
    void end();
    /// The path of the video that some of the faults replace.
    [[nodiscard]] QString videoFile() const;

private:
    RandomAction breakEmulator();
    RandomAction takeOrFreePort();
    RandomAction replaceVideo();
    RandomAction plugCameras();

    void setDiskFull(bool full);
    void setSettingsLocked(bool locked);

    QRandomGenerator &m_random;
    QTemporaryDir m_folder;
    VirtualCameras m_cameras;
    std::unique_ptr<QObject> m_port; // occupies a port that the emulator needs
    bool m_diskFull = false;
    bool m_settingsLocked = false;
};
