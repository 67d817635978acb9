#pragma once

#include <QObject>

/// Tests what the user sees when the emulator answers with errors or with nonsense.
class RepliesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testErrorDialog_data();
    void testErrorDialog();
    void testRefusedApply();
    void testErrorDialogClosesWithTheWindow();
    void cleanupTestCase();
};
