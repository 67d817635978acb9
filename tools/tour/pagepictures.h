#pragma once

#include "journalreader.h"

#include <QString>

/// Takes a picture of each page of the window, in whatever language the IDE speaks.
class PagePictures
{
public:
    /// \a folder must exist; pictures in it are replaced.
    PagePictures(QString folder, const QString &journalPath);

    /// Throws WaitingFailed when a page does not appear.
    void take();

private:
    void takePicture(const QString &name) const;

    QString m_folder;
    JournalReader m_journal;
};
