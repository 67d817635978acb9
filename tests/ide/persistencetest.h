#pragma once

#include <QObject>

/// Values outlive the IDE: the first test runs in one IDE, the second in the next.
class PersistenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSet();
    void testRestored();
};
