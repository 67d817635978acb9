#include "cameraemulationmanager.h"

const QString CameraEmulationManager::portForwardingRule = QStringLiteral("emulationmanagementudp");

bool CameraEmulationManager::streamRunning() const
{
    return false;
}

void CameraEmulationManager::setupCameraStreamPipeline()
{}

void CameraEmulationManager::stopVideoStream()
{}

void CameraEmulationManager::stopCameraStream()
{}
