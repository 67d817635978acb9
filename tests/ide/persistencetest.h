#pragma once

#include <QObject>

/// Values outlive a lost link and the IDE: the first test runs in one IDE, the second in a later
/// one.
class PersistenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSet();
    void testRestored();
};
