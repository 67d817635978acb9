#pragma once

#include <QObject>

/// What the user sees when the emulator answers with more than "done".
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
