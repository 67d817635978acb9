#include "cameraplayback.h"

#include "cameraemulationmanager.h"

#include <link/methodarguments.h>
#include <link/recording.h>

#include <algorithm>

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// The size and the rate are those of the recording if the camera has them, else its first ones.
static void selectCamera(CameraEmulationManager &manager, const QString &name,
                         const QJsonArray &values)
{
    manager.setCameraName(name);
    const QVariantList resolutions = manager.resolutions();
    for (qsizetype i = 0; i < resolutions.size(); ++i) {
        const QVariantMap resolution = resolutions.at(i).toMap();
        if (resolution.value(u"width"_s) == values.at(1).toInt()
            && resolution.value(u"height"_s) == values.at(2).toInt())
            manager.setResolutionIndex(int(i));
    }
    const QString framerate = values.at(3).toString();
    if (manager.framerates().contains(framerate))
        manager.setFramerate(framerate);
}

void CameraPlayback::prepare(CameraEmulationManager &manager, const Recording &recording)
{
    const ServiceMethod *start = findMethod(cameraService, u"startCamera");
    const auto &calls = recording.calls();
    if (manager.cameras().isEmpty()
        && std::ranges::find(calls, start, &RecordedCall::method) != calls.end())
        manager.setupCameraStreamPipeline();
}

QString CameraPlayback::play(CameraEmulationManager &manager, const RecordedCall &call)
{
    const QJsonArray values = MethodArguments::toJson(*call.method, call.arguments);
    const QString name = values.at(0).toString();
    if (call.method == findMethod(cameraService, u"stop")) {
        manager.stopStreams();
        return {};
    }
    if (call.method == findMethod(cameraService, u"startVideo")) {
        if (!QFileInfo(name).isFile())
            return tr("There is no video file \"%1\".").arg(name);
        manager.startVideoStream(QFileInfo(name).absoluteFilePath());
        return manager.videoStreamRunning()
                   ? QString()
                   : tr("The video file \"%1\" cannot be streamed.").arg(name);
    }
    if (!manager.cameras().contains(name))
        manager.setupCameraStreamPipeline(); // reads the cameras
    if (!manager.cameras().contains(name))
        return tr("There is no camera \"%1\".").arg(name);
    selectCamera(manager, name, values);
    if (manager.isSelectionStreaming())
        return {}; // goes on: each move of the slider of a recording comes here
    manager.stopStreams();
    manager.setCameraStreamSettings();
    manager.startCameraStream();
    return {};
}

} // namespace EmulationManagement::Internal
