#pragma once

#include "cameracapabilities.h"
#include "streampipeline.h"

#include <QString>

/// Streams a camera of the host.
class CameraPipeline : public StreamPipeline
{
public:
    CameraPipeline();

    /*!
     * Stops, and sets the camera for the next play().
     *
     * The camera chooses the size, in pixels, if \a size has a negative side, and the frame rate
     * ("30/1" for example) if \a framerate is empty. Nothing is sent if \a source has no factory,
     * or if the camera lacks the size or the frame rate.
     */
    void setCamera(const CameraSource &source, QSize size, const QString &framerate);

private:
    ObjectReference<GstElement> m_source;
    ObjectReference<GstElement> m_capsFilter;
};
