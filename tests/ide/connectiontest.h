#pragma once

#include <QObject>

/// Tests the way from the menu to the window, and whatever can go wrong on it.
class ConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void testMachineOff();
    void testMachineStopped();
    void testMissingPackages();
    void testLinkLostWithoutTrack();
    void testWindowBroughtToFront();
    void testWindowOpensAgain();
    void testOpeningInProgress();
    void testMachineJustStarted();
    void testMessageLeftOpen();
    void testDeviceRestsWhileHidden();
    void testNextEmulatorServed();
    void testMachineOnWithoutForwardings();
    void testDeviceModelChanged();
    void testNoEmulator();
};
