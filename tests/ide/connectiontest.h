#pragma once

#include <QObject>

/// The way from the menu to the window, with every obstacle that can stand in it.
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
