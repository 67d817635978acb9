#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * What streaming costs the IDE, against gst-launch with the same elements; what arrives of it, how
 * long the picture stands still where a file begins anew, how discovery grows with the cameras, and
 * what is left of a thousand changes.
 */
class CameraBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testProcessorTime();
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
