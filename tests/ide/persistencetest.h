#pragma once

#include <QObject>

/// Tests that values survive the loss of the link and the end of the IDE: the second test runs in
/// an IDE that is started after the first one has ended.
class PersistenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSet();
    void testRestored();
};
