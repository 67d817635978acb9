#pragma once

#include <QObject>

/// Tests that the IDE's event loop reports cameras, and that a stream ends with the window.
class CameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEndOfStream();
    void cleanupTestCase();
};
