#include "sliderbenchmark.h"

#include "ratio.h"

#include <plugindriver.h>
#include <waiting.h>
#include <windowdriver.h>

#include <QElapsedTimer>
#include <QQuickItem>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace PluginDriver;
using namespace std::chrono_literals;

/// The times between two turns of the event loop, in milliseconds, while the mouse drags back and
/// forth over \a way.
static std::vector<double> gapsWhileDragging(QWindow *window, QPoint centre, int way)
{
    static constexpr auto duration = 10s;
    static constexpr int eventsPerSecond = 60;

    QTest::mousePress(window, Qt::LeftButton, {}, centre);
    std::vector<double> gaps;
    QElapsedTimer sinceLast;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [&] {
        gaps.push_back(static_cast<double>(sinceLast.nsecsElapsed()) / 1e6);
        sinceLast.start();
    });
    int moves = 0;
    QTimer mouse;
    mouse.setTimerType(Qt::PreciseTimer);
    QObject::connect(&mouse, &QTimer::timeout, &mouse, [&] {
        const double turn = 2 * std::numbers::pi * ++moves / eventsPerSecond;
        QTest::mouseMove(window, centre + QPoint(qRound(way * std::sin(turn)), 0));
    });
    sinceLast.start();
    ticks.start(0ms);
    mouse.start(1000ms / eventsPerSecond);
    QTest::qWait(duration);
    QTest::mouseRelease(window, Qt::LeftButton, {}, centre);
    return gaps;
}

void SliderBenchmark::testLongestGap()
{
    JournalReader journal(journalPath());
    openWindow(journal);
    const WindowDriver driver(view());
    driver.clickButton("Sensors Values");
    waitFor("the page", [&] { return driver.items("QQuickSlider").size() > 3; });
    const QQuickItem *slider = driver.items("QQuickSlider").constFirst();
    const auto *handle = slider->property("handle").value<QQuickItem *>();

    const QPoint centre = handle->mapToScene({handle->width() / 2, handle->height() / 2}).toPoint();
    const qsizetype start = journal.position();
    const std::vector<double> gaps = gapsWhileDragging(view(), centre, qRound(slider->width() / 3));
    QVERIFY(journal.callsSince(start).size() > 300); // the slider followed

    QQuickWindow empty;
    empty.setGeometry(view()->geometry());
    view()->close();
    empty.show();
    QVERIFY(QTest::qWaitForWindowExposed(&empty));
    const std::vector<double> baseline = gapsWhileDragging(&empty, centre, 100);

    static constexpr double frame = 16;
    report({.what = "longest gap of the event loop while a slider is dragged",
            .measured = *std::ranges::max_element(gaps),
            .baseline = std::max(frame, *std::ranges::max_element(baseline)),
            .unit = "ms",
            .limit = 1});
    report({.what = "99.9th percentile of these gaps",
            .measured = quantile(gaps, 0.999),
            .baseline = quantile(baseline, 0.999),
            .unit = "ms"});
}

void SliderBenchmark::cleanupTestCase()
{
    stopMachine();
}
