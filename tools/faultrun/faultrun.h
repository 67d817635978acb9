#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <memory>
#include <random>

QT_BEGIN_NAMESPACE
class QTcpServer;
class QUdpSocket;
QT_END_NAMESPACE

class VirtualCameras;

/*!
 * Faults and actions of the user at random, in quick succession: the IDE stays alive and its event
 * loop never stands still for long. In the end everything works, or the user quits in the middle of
 * it all and the IDE ends by itself.
 *
 * FAULT_SEED repeats a run as far as timing allows, FAULT_SECONDS says how long it takes, and
 * FAULT_QUIT that the user quits.
 */
class FaultRun : public QObject
{
    Q_OBJECT

public:
    FaultRun();
    ~FaultRun() override;

private Q_SLOTS:
    void initTestCase();
    void testRandomFaults();

private:
    void actSoon();
    void act();
    void begin(const QString &action);
    void measureGap();
    void answerMessageBox();
    /// Takes all faults back that are not the emulator's own.
    void makeGood();
    void checkThatAllWorks();
    void quit();

    // faults
    void askEmulatorForFault();
    void takeOrFreePort();
    void fillOrFreeDisk();
    void lockOrUnlockSettings();
    void replaceVideo();
    void plugCameras();
    // what the user and the SDK do
    void clickSomewhere();
    void pressSomeKey();
    void useManagers();
    void useMenu();
    void useSdk();

    [[nodiscard]] int number(int end);
    template<typename T, std::size_t size>
    [[nodiscard]] const T &one(const T (&choices)[size])
    {
        return choices[static_cast<std::size_t>(number(int(size)))];
    }

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    std::unique_ptr<VirtualCameras> m_cameras;
    std::unique_ptr<QTcpServer> m_tcpPort;
    std::unique_ptr<QUdpSocket> m_udpPort;
    QTimer m_watch;
    QTimer m_boxTimer;
    QElapsedTimer m_sinceWatch;
    QString m_action;
    std::chrono::milliseconds m_longestGap{0};
    QString m_longestAction;
    int m_actionCount = 0;
    bool m_running = false;
    bool m_diskFull = false;
    bool m_settingsLocked = false;
};
