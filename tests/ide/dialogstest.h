#pragma once

#include <QObject>

/// Tests the question box that the pages show over the IDE's main window.
class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWarningDialog_data();
    void testWarningDialog();
};
