#pragma once

#include "randomaction.h"

/// Chooses what the user or the SDK does next in a fault run. \a video is the file that is
/// streamed.
[[nodiscard]] RandomAction nextUserAction(QRandomGenerator &random, const QString &video);
