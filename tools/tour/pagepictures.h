#pragma once

#include <QString>

/// Saves a picture of each page in \a folder, which must exist. The IDE may speak any language.
/// Throws WaitingFailed when a page does not appear.
void takePagePictures(const QString &folder);
