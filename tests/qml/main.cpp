#include "host.h"
#include "warningdialogdouble.h"

#include <plugin/textfielddoublevalidator.h>

#include <support/idesettings.h>

#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

#include <memory>

namespace EmulationManagement::Internal {

/// Makes what the pages expect of the IDE and of the plugin.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        // the pages write numbers in English, whatever the user's language
        QLocale::setDefault(QLocale(QLocale::German));
        m_settings = std::make_unique<TestSupport::IdeSettings>();

        constexpr char qmlModule[] = "org.plova";
        qmlRegisterType<WarningDialogDouble>(qmlModule, 1, 0, "WarningDialog");
        qmlRegisterType<SettingsManager>(qmlModule, 1, 0, "SettingsManager");
        qmlRegisterType<TextFieldDoubleValidator>(qmlModule, 1, 0, "TextFieldDoubleValidator");
        qmlRegisterUncreatableType<GPSEmulationManager>(qmlModule, 1, 0, "GPSEmulationManager",
                                                        QString());
        qmlRegisterUncreatableType<CameraEmulationManager>(qmlModule, 1, 0,
                                                           "CameraEmulationManager", QString());
        qmlRegisterType<SensorsEmulationManager>(qmlModule, 1, 0, "SensorsEmulationManager");
        qmlRegisterUncreatableType<AlsModel>(qmlModule, 1, 0, "AlsModel", QString());
        qmlRegisterUncreatableType<TapModel>(qmlModule, 1, 0, "TapModel", QString());
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        (new Host(engine))->setContextProperties(engine->rootContext());
    }

    void cleanupTestCase() { m_settings.reset(); }

private:
    std::unique_ptr<TestSupport::IdeSettings> m_settings;
};

} // namespace EmulationManagement::Internal

QUICK_TEST_MAIN_WITH_SETUP(qml, EmulationManagement::Internal::Setup)

#include "main.moc"
