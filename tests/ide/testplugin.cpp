#include "testplugin.h"

#include "cameratest.h"
#include "connectiontest.h"
#include "dialogstest.h"
#include "drawingtest.h"
#include "faultrun.h"
#include "languagetest.h"
#include "locationtest.h"
#include "outputpanetest.h"
#include "persistencetest.h"
#include "quitscenario.h"
#include "repliestest.h"
#include "startuptest.h"

#include <coreplugin/icore.h>

bool TestPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
    Q_UNUSED(errorString)
    qunsetenv("LD_PRELOAD"); // the programs that the IDE starts must not inherit a sanitizer
    addTest<StartUpTest>();
    addTest<DialogsTest>();
    addTest<DrawingTest>();
    addTest<CameraTest>();
    addTest<ConnectionTest>();
    addTest<RepliesTest>();
    addTest<LanguageTest>();
    addTest<LocationTest>();
    addTest<OutputPaneTest>();
    addTest<PersistenceTest>();
    addTest<FaultRun>();
    return true;
}

void TestPlugin::extensionsInitialized()
{
    if (!qEnvironmentVariableIsSet("QUIT_SCENARIO"))
        return;
    connect(
        Core::ICore::instance(), &Core::ICore::coreOpened, this,
        [] { playQuitScenario(qgetenv("QUIT_SCENARIO"), qgetenv("QUIT_MANNER")); },
        Qt::QueuedConnection);
}
