#include "faultrun.h"

#include "faults.h"
#include "useractions.h"

#include <plugindriver.h>
#include <waiting.h>

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>
#include <coreplugin/coreconstants.h>
#include <coreplugin/icore.h>

#include <ravik/virtualmachine.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>

#include <unistd.h>

using namespace PluginDriver;
using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds gapLimit = 2s;
// the plugin may take so long to find out the codec of a video file
static constexpr std::chrono::milliseconds codecCheckLimit = 2s;
static constexpr int longestPause = 100; // ms between two actions

/// The number in an environment variable, or \a fallback.
static int environmentNumber(const char *name, int fallback)
{
    bool ok = false;
    const int number = qEnvironmentVariableIntValue(name, &ok);
    return ok ? number : fallback;
}

FaultRun::FaultRun()
{
    m_watch.setTimerType(Qt::PreciseTimer);
    m_watch.setInterval(10ms);
    connect(&m_watch, &QTimer::timeout, this, &FaultRun::measureGap);
    m_boxTimer.setInterval(200ms);
    connect(&m_boxTimer, &QTimer::timeout, this, &FaultRun::answerMessageBox);
}

FaultRun::~FaultRun() = default;

void FaultRun::testRandomFaults()
{
    const int seed = environmentNumber("FAULT_SEED", QRandomGenerator::global()->bounded(INT_MAX));
    const std::chrono::seconds duration(environmentNumber("FAULT_SECONDS", 20));
    qInfo("Seed %d, %d seconds", seed, int(duration.count()));
    m_random.seed(unsigned(seed));
    QTest::failOnWarning(QRegularExpression("qrc:.*(Type|Reference|Range)Error"));
    m_faults = std::make_unique<Faults>(m_random);
    const bool quits = qEnvironmentVariableIsSet("FAULT_QUIT");
    QSignalSpy links(invoker(), SIGNAL(webSocketConnected()));
    QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    m_sinceWatch.start();
    m_watch.start();
    m_boxTimer.start();
    m_running = true;
    actSoon();
    QTest::qWait(duration);
    if (quits)
        quit();
    m_running = false;
    qInfo(
        "%d actions, %d connections, %d replies; the event loop was blocked for at most %d ms: %s",
        m_actionCount, int(links.size()), int(replies.size()), int(m_longestGap.count()),
        qPrintable(m_longestAction));
    if (!quits)
        checkThatAllWorks();
    m_watch.stop();
    m_boxTimer.stop();
    QVERIFY2(m_longestGap <= gapLimit, qPrintable(m_longestAction));
}

void FaultRun::checkThatAllWorks()
{
    begin("The end");
    m_faults->end();
    waitFor("message boxes to close", [] { return !QApplication::activeModalWidget(); });
    stopMachine(); // which ends the emulator's faults
    waitFor("the machine to settle", [] {
        return machine()->state() == Ravik::VirtualMachine::Disconnected
               || machine()->state() == Ravik::VirtualMachine::Error;
    });
    m_watch.stop();

    JournalReader journal(journalPath());
    openWindow(journal);
    const qsizetype start = journal.position();
    QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 4321);
    journal.waitForCall("setAlsValue int32:4321", start);
    stopMachine();
}

// Ends the faults first: an IDE that cannot write its settings asks what to do.
void FaultRun::quit()
{
    static constexpr unsigned limit = 10; // s until the process is gone
    waitFor("message boxes to close", [] { return !QApplication::activeModalWidget(); });
    m_running = false;
    m_faults->end();
    begin("Quit");
    alarm(limit);
    Core::ActionManager::command(Core::Constants::EXIT)->action()->trigger();
    waitFor("the IDE's window to close", [] { return !Core::ICore::mainWindow()->isVisible(); });
}

void FaultRun::measureGap()
{
    const std::chrono::milliseconds gap(m_sinceWatch.restart());
    const auto counted = gap - (m_action == "Start Video" ? codecCheckLimit : 0ms);
    if (counted <= m_longestGap)
        return;
    m_longestGap = counted;
    m_longestAction = m_action;
}

void FaultRun::actSoon()
{
    // Uses a new timer each time, because actions must go on while one of them shows a message box.
    if (m_running)
        QTimer::singleShot(m_random.bounded(longestPause), this, &FaultRun::act);
}

void FaultRun::act()
{
    if (!m_running)
        return;
    actSoon();
    ++m_actionCount;
    const RandomAction action = m_random.bounded(5) < 2
                                    ? m_faults->next()
                                    : nextUserAction(m_random, m_faults->videoFile());
    if (!action.run)
        return;
    begin(action.name);
    action.run();
}

void FaultRun::answerMessageBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box && !box->buttons().isEmpty())
        oneOf(box->buttons(), m_random)->click();
}

void FaultRun::begin(const QString &action)
{
    m_action = action;
    // Printed before the action, because the last line must name an action that never ends.
    std::fprintf(stderr, "%s\n", qPrintable(action));
}
