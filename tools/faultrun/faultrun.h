#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QRandomGenerator>
#include <QTimer>

#include <chrono>
#include <memory>

class Faults;

/*!
 * Makes faults and uses the plugin at random, in quick succession. The IDE must stay alive, and its
 * event loop must never be blocked for long. At the end everything must work again, or the user
 * quits in the middle of it all and the IDE must end by itself.
 *
 * FAULT_SEED repeats a run as far as timing allows, FAULT_SECONDS is its duration, and with
 * FAULT_QUIT the user quits.
 */
class FaultRun : public QObject
{
    Q_OBJECT

public:
    FaultRun();
    ~FaultRun() override;

private Q_SLOTS:
    void testRandomFaults();

private:
    void actSoon();
    void act();
    void begin(const QString &action);
    void measureGap();
    void answerMessageBox();
    void checkThatAllWorks();
    void quit();

    QRandomGenerator m_random;
    std::unique_ptr<Faults> m_faults;
    QTimer m_watch;
    QTimer m_boxTimer;
    QElapsedTimer m_sinceWatch;
    QString m_action;
    std::chrono::milliseconds m_longestGap{0};
    QString m_longestAction;
    int m_actionCount = 0;
    bool m_running = false;
};
