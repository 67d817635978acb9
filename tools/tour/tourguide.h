#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <QString>

/// Prints the steps of the tour, saves its pictures, and waits for what the emulator receives.
class TourGuide
{
public:
    /// \a pictureFolder must exist.
    explicit TourGuide(QString pictureFolder);

    /// The tool window.
    [[nodiscard]] const WindowDriver &window() const { return m_window; }

    /// Prints a line about the next step. The following functions consider only what the emulator
    /// receives from then on.
    void begin(const QString &step);
    [[nodiscard]] QStringList calls();
    void waitForCall(const QString &call);
    /// Waits for an event of the emulator's journal.
    void waitForEvent(const QString &event);
    /// Waits for whole camera pictures of this size.
    void waitForVideo(QSize size);

    /// Saves a picture of the screen.
    void takePicture(const QString &name);
    /// Prints how often the emulator received each method, and the method's last call.
    void printAllCalls();

private:
    WindowDriver m_window;
    JournalReader m_journal;
    QString m_pictureFolder;
    qsizetype m_stepStart = 0;
    int m_pictureCount = 0;
};
