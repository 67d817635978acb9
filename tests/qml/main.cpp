#include "host.h"
#include "warningdialogdouble.h"

#include <devicemodel/devicemodelreader.h>
#include <devicemodel/imageitem.h>

#include <location/trackmodel.h>
#include <location/trackreader.h>

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

        qmlRegisterTypesAndRevisions<
            WarningDialogDouble, SettingsManager, TextFieldDoubleValidator, SensorsEmulationManager,
            GPSEmulationManager, CameraEmulationManager, AlsModel, TapModel, TrackModel,
            TrackReader, StreamPreview, DeviceMesh, DeviceModelReader, ImageItem>("org.plova", 1);
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
