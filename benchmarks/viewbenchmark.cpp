#include "viewbenchmark.h"

#include "ratio.h"

#include <plugindriver.h>

#include <QQmlAbstractUrlInterceptor>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>

using namespace PluginDriver;

/// Loads the empty base of all pages instead of the device model page.
class EmptyPage : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl &url, DataType type) override
    {
        if (type == QmlFile && url.fileName() == "SmartphoneModelPage.qml")
            return url.resolved(QUrl("shared/EmulationPage.qml"));
        return url;
    }
};

/// The time, in milliseconds, that the view takes to load in a new engine.
static double loadingTime(QQmlAbstractUrlInterceptor *interceptor)
{
    static constexpr const char *properties[] = {
        "sensorsEmulationManager",    "gpsEmulationManager",       "cameraEmulationManager",
        "smartphone3DModelConfig",    "emulationManagementPlugin", "remoteDBusInvokerService",
        "themeBackgroundColorNormal", "themeHighlightColor",       "themeSeparatorColor",
        "darkUserInterface",
    };
    QQuickView copy;
    if (interceptor)
        copy.engine()->addUrlInterceptor(interceptor);
    for (const char *name : properties) {
        copy.rootContext()->setContextProperty(
            QLatin1StringView(name),
            view()->rootContext()->contextProperty(QLatin1StringView(name)));
    }
    const double time = millisecondsOf([&] { copy.setSource(view()->source()); });
    if (copy.status() != QQuickView::Ready)
        qFatal("The view did not load");
    return time;
}

void ViewBenchmark::testLoading()
{
    static constexpr int rounds = 20;
    static constexpr double allowance = 10; // ms
    EmptyPage emptyPage;
    std::vector<double> whole;
    std::vector<double> without;
    for (int round = 0; round < rounds; ++round) {
        whole.push_back(loadingTime(nullptr));
        without.push_back(loadingTime(&emptyPage));
    }
    const double baseline = quantile(without, 0.5);
    report({.what = "loading the view, with the device model page against without it",
            .measured = quantile(whole, 0.5),
            .baseline = baseline,
            .unit = "ms",
            .limit = (baseline + allowance) / baseline});
}
