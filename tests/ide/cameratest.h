#pragma once

#include <QObject>

/// The camera in the IDE: its loop tells of cameras, and no stream outlives the window.
class CameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testPlugging();
    void testEndOfStream();
    void cleanupTestCase();
};
