#include "benchmarkplugin.h"

#include "callbenchmark.h"
#include "camerabenchmark.h"
#include "drawingbenchmark.h"
#include "locationbenchmark.h"
#include "restartbenchmark.h"
#include "sliderbenchmark.h"
#include "startupbenchmark.h"
#include "viewbenchmark.h"

bool BenchmarkPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
    Q_UNUSED(errorString)
    addTest<CallBenchmark>();
    addTest<CameraBenchmark>();
    addTest<DrawingBenchmark>();
    addTest<LocationBenchmark>();
    addTest<RestartBenchmark>();
    addTest<SliderBenchmark>();
    addTest<StartUpBenchmark>();
    addTest<ViewBenchmark>();
    return true;
}
