#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <QSize>
#include <QString>

#include <functional>

/// The part of the tour on the camera page: streams virtual cameras and a video file, and checks
/// which pictures the emulator receives.
class CameraTour
{
public:
    using TakePicture = std::function<void(const QString &name)>;

    CameraTour(const WindowDriver &driver, JournalReader &journal, TakePicture takePicture);

    void run();

private:
    void streamCameras();
    void unplugCamera();
    void playVideoFile();
    void cancelDialog();
    void refuseVideoFile();
    void leavePage();

    /// Selects a file in the dialog and clicks \a button there.
    void chooseFile(const QString &name, const QString &button);
    void waitForPictures(QSize size, qsizetype since);

    WindowDriver m_driver;
    JournalReader &m_journal;
    TakePicture m_takePicture;
};
