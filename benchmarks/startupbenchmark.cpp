#include "startupbenchmark.h"

#include "ratio.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// Times in milliseconds.
struct Start
{
    double whole = 0;
    double initialize = 0; ///< the plugin's part of it
};

static double number(const QByteArray &profile, const QString &pattern)
{
    const QRegularExpressionMatch match
        = QRegularExpression(pattern).match(QString::fromLocal8Bit(profile));
    return match.captured(1).toDouble();
}

static Start start(const QString &settings, const QStringList &arguments)
{
    QProcess ide;
    ide.setProcessChannelMode(QProcess::MergedChannels);
    ide.start(QCoreApplication::applicationFilePath(),
              QStringList{"-settingspath", settings, "-no-crashcheck", "-profile"} + arguments);
    QByteArray profile;
    while (!profile.contains("Total startup:") || !profile.endsWith('\n')) {
        if (!ide.waitForReadyRead())
            qFatal("The IDE did not start:\n%s", profile.constData());
        profile += ide.readAll();
    }
    ide.kill();
    ide.waitForFinished();
    return {.whole = number(profile, "Total startup: *(\\d+)ms"),
            .initialize
            = number(profile, "<initializePlugin +emulationmanagement .*\\( *(\\d+)ms")};
}

void StartUpBenchmark::testStart()
{
    static constexpr int rounds = 20;
    static constexpr double allowance = 50; // ms
    const QStringList without{"-noload", "emulationmanagement"};
    const QTemporaryDir settings;
    // the first start writes settings and caches
    static_cast<void>(start(settings.path(), {}));
    std::vector<double> whole;
    std::vector<double> bare;
    std::vector<double> initialize;
    for (int round = 0; round < rounds; ++round) {
        const Start measured = start(settings.path(), {});
        whole.push_back(measured.whole);
        initialize.push_back(measured.initialize);
        bare.push_back(start(settings.path(), without).whole);
    }
    report({.what = "start of the IDE with the plugin against without it",
            .measured = quantile(whole, 0.5),
            .baseline = quantile(bare, 0.5),
            .unit = "ms",
            .limit = 1.08});
    report({.what = "the plugin's initialization against what it may take",
            .measured = quantile(initialize, 0.5),
            .baseline = allowance,
            .unit = "ms",
            .limit = 1});
}
