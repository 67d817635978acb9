#pragma once

#include "journal.h"

#include <QString>

/// Takes a picture of each page of the window, in whatever language the IDE speaks.
class PagePictures
{
public:
    /// The folder exists; pictures in it are replaced.
    PagePictures(QString folder, const QString &journalPath);

    /// Throws WaitingFailed when the window does not get to what is to be shown.
    void take();

private:
    void takePicture(const QString &name) const;

    QString m_folder;
    Journal m_journal;
};
