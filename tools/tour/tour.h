#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <QString>

/*!
 * A walk through the plugin as a user takes it: from the IDE's menu through every page.
 *
 * Prints its progress, saves a picture of every page, and throws WaitingFailed when the emulator
 * does not receive what was sent.
 */
class Tour
{
public:
    /// \a pictureFolder must exist; \a journalPath is where the emulator's journal appears.
    Tour(const QString &pictureFolder, const QString &journalPath);

    void run();

private:
    void visitAll();
    void openWindow();
    void chooseDeviceModel(const QString &name);
    void visitSensors(const WindowDriver &driver);
    void visitDeviceModel(const WindowDriver &driver);
    void visitLocation(const WindowDriver &driver);
    void takePicture(const QString &name);
    void printCalls();

    QString m_pictureFolder;
    JournalReader m_journal;
    int m_pictureCount = 0;
};
