#include <sensors/settingsmanager.h>
#include <support/idesettings.h>

#include <QFile>
#include <QMetaMethod>
#include <QTest>

using namespace EmulationManagement::Internal;

/// One value: the function that reads it, its key, its default and its saved value.
struct Entry
{
    const char *read;
    const char *key;
    double fresh;
    double saved;
};

static constexpr double third = 1.0 / 3; // without a short decimal form

static constexpr Entry entries[] = {
    {"readAccelerometerX()", "accelerometer_x", 0, 1},
    {"readAccelerometerY()", "accelerometer_y", 0, -2},
    {"readAccelerometerZ()", "accelerometer_z", 1000, 3},
    {"readAlsLuxValue()", "als", 100, 4},
    {"readGyroscopeX()", "gyroscope_x", 0, 5.5},
    {"readGyroscopeY()", "gyroscope_y", 0, -6 * third},
    {"readGyroscopeZ()", "gyroscope_z", 1.1459155902616465, 7 * third},
    {"readMagneticFieldX()", "magnetic_field_x", 0, 8.5},
    {"readMagneticFieldY()", "magnetic_field_y", 5.95, 9.5},
    {"readMagneticFieldZ()", "magnetic_field_z", -48.76, -10 * third},
    {"readMagnetometerX()", "magnetometer_x", 4.3e-5, 1.1e-5},
    {"readMagnetometerY()", "magnetometer_y", 0, 1e-300},
    {"readMagnetometerZ()", "magnetometer_z", 0, -1.3e-5},
    {"readMagnetometerCalibLevel()", "magnetometer_calib_level", 0, 3},
    {"readProximitySensorReflectanceValue()", "proximity_reflectance", 5, 10},
    {"readTapSensorValue()", "tap", -1, 6},
    {"readGpsLatitude()", "gps_latitude", 0, -60.123456789},
    {"readGpsLongitude()", "gps_longitude", 0, 179.99999999999997},
    {"readGpsAltitude()", "gps_altitude", 0, 16 * third},
    {"read3DModelRotationX()", "model_rotation_x", 0, 17.5},
    {"read3DModelRotationY()", "model_rotation_y", 0, 18.5},
    {"read3DModelRotationZ()", "model_rotation_z", 0, 19.5},
    {"read3DModelPositionX()", "model_position_x", 0, 20.5},
    {"read3DModelPositionY()", "model_position_y", 0, 21.5},
    {"read3DModelPositionZ()", "model_position_z", 0, 22.5},
    {"readDoNotShowAgainResetSensorsDialog()", "do_not_show_again_reset_sensors_dialog", 0, 1},
};

/// Reads a value by the method's name, as a page does.
static double read(const char *name)
{
    SettingsManager manager;
    const QMetaObject *metaObject = manager.metaObject();
    const QMetaMethod method = metaObject->method(metaObject->indexOfMethod(name));
    QVariant value(method.returnMetaType());
    if (!method.invoke(&manager, QGenericReturnArgument(method.typeName(), value.data())))
        return qQNaN();
    return value.toDouble();
}

static void saveEverything()
{
    SettingsManager manager;
    manager.saveAccelerometerValues(1, -2, 3);
    manager.saveAlsLuxValue(4);
    manager.saveGyroscopeValues(5.5, -6 * third, 7 * third);
    manager.saveMagneticFieldValues(8.5, 9.5, -10 * third);
    manager.saveMagnetometerValues(1.1e-5, 1e-300, -1.3e-5);
    manager.saveMagnetometerCalibLevel(3);
    manager.saveProximitySensorReflectanceValue(10);
    manager.saveTapSensorValue(TapModel::Z_Pos);
    manager.saveGpsValues(-60.123456789, 179.99999999999997, 16 * third);
    manager.save3DModelRotationValues(17.5, 18.5, 19.5);
    manager.save3DModelPositionValues(20.5, 21.5, 22.5);
    manager.saveDoNotShowAgainResetSensorsDialog(true);
    manager.saveGpsAltitude(qQNaN()); // not saved
}

class SettingsManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshSettingsGiveDefaults()
    {
        const TestSupport::IdeSettings settings;
        for (const Entry &entry : entries)
            QVERIFY2(read(entry.read) == entry.fresh, entry.read);
    }

    void whatIsSavedComesBackExactly()
    {
        TestSupport::IdeSettings settings;
        saveEverything();
        settings.reopen();
        for (const Entry &entry : entries)
            QVERIFY2(read(entry.read) == entry.saved, entry.read);
        QFile file(settings.fileName());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(file.size()));
        file.write("; lost when the settings are written");
        file.close();
        settings.reopen();
        saveEverything();
        settings.reopen();

        // the keys must stay the same, because other versions read the file
        QVERIFY(file.open(QIODevice::ReadOnly));
        QList<QByteArray> lines = file.readAll().trimmed().split('\n');
        QCOMPARE(lines.takeFirst(), "[emulationmanagement]");
        QCOMPARE(lines.takeLast(), "; lost when the settings are written");
        for (const Entry &entry : entries) {
            const QByteArray start = QByteArray(entry.key) + '=';
            QVERIFY2(lines.removeIf([&](const QByteArray &line) { return line.startsWith(start); }),
                     entry.key);
        }
        QCOMPARE(lines, QList<QByteArray>());
    }

    void junkReadsAsNought()
    {
        TestSupport::IdeSettings settings;
        QFile file(settings.fileName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[emulationmanagement]\n");
        for (const Entry &entry : entries) {
            // every text is true for a flag, so only an empty value is junk
            const bool isFlag = QByteArray(entry.key).startsWith("do_not");
            file.write(QByteArray(entry.key) + (isFlag ? "=\n" : "=12abc\n"));
        }
        file.close();
        settings.reopen();
        for (const Entry &entry : entries)
            QVERIFY2(read(entry.read) == 0, entry.read);
    }
};

QTEST_GUILESS_MAIN(SettingsManagerTest)

#include "tst_settingsmanager.moc"
