#pragma once

#include <QObject>

/// The question box that the pages use, over the IDE's main window.
class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWarningDialog_data();
    void testWarningDialog();
};
