#pragma once

#include <QCoreApplication>
#include <QString>

class CameraEmulationManager;

namespace EmulationManagement::Internal {

class Recording;
struct RecordedCall;

/// Plays the camera's calls of a recording.
class CameraPlayback
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::CameraPlayback)

public:
    /// Does what takes long, so that a camera's start does not delay the calls beside it.
    static void prepare(CameraEmulationManager &manager, const Recording &recording);
    /// Starts or stops a stream. Returns an error, or an empty text.
    [[nodiscard]] static QString play(CameraEmulationManager &manager, const RecordedCall &call);
};

} // namespace EmulationManagement::Internal
