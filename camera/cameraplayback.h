#pragma once

#include <QCoreApplication>
#include <QString>

class CameraEmulationManager;

namespace EmulationManagement::Internal {

struct RecordedCall;

/// Plays the camera's calls of a recording.
class CameraPlayback
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::CameraPlayback)

public:
    /// Starts or stops a stream. Returns an error, or an empty text.
    [[nodiscard]] static QString play(CameraEmulationManager &manager, const RecordedCall &call);
};

} // namespace EmulationManagement::Internal
