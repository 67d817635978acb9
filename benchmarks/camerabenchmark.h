#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * Measures the processor time of streaming against gst-launch with the same elements, the frames
 * that arrive, the gap where a file starts again, how discovery grows with the number of cameras,
 * and the resources that are in use after a thousand changes.
 */
class CameraBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testProcessorTime();
    void testPreview();
    void testFramesReceived();
    void testDiscovery();
    void testEndurance();
    void testGapAtRestart();
    void cleanupTestCase();

private:
    /// Makes a VP8 file of 640x480 with 30 frames a second and returns its path.
    [[nodiscard]] QString makeVideo(int frames) const;

    QTemporaryDir m_folder;
};
