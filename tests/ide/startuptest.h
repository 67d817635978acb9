#pragma once

#include <QObject>

/// What the plugin is and has after the IDE's start, before any emulator runs.
class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMetadata();
    void testContextProperties();
    void testWindow();
    void testMenu();
    void testQmlTypes_data();
    void testQmlTypes();
    void testManagersFollowInvoker();
};
