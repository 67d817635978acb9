#pragma once

#include <QObject>

/// What the plugin has after the IDE's start, before any emulator runs.
class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testThemeColors();
    void testMenu();
    void testManagersFollowInvoker();
};
