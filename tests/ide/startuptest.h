#pragma once

#include <QObject>

/// Tests the plugin after the start of the IDE, before any emulator runs.
class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testThemeColors();
    void testMenu();
    void testManagersFollowInvoker();
};
