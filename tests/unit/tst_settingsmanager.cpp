#include <sensors/settingsmanager.h>
#include <support/idesettings.h>

#include <QFile>
#include <QJSEngine>
#include <QTest>

using namespace EmulationManagement::Internal;

/// One value. Values with the same function save are saved by one call.
struct Entry
{
    const char *save;
    const char *read;
    const char *key;
    double fresh;
    double saved;
};

static constexpr double third = 1.0 / 3; // without a short decimal form

static constexpr Entry entries[] = {
    {"saveAccelerometerValues", "readAccelerometerX", "accelerometer_x", 0, 1},
    {"saveAccelerometerValues", "readAccelerometerY", "accelerometer_y", 0, -2},
    {"saveAccelerometerValues", "readAccelerometerZ", "accelerometer_z", 1000, 3},
    {"saveAlsLuxValue", "readAlsLuxValue", "als", 100, 4},
    {"saveGyroscopeValues", "readGyroscopeX", "gyroscope_x", 0, 5.5},
    {"saveGyroscopeValues", "readGyroscopeY", "gyroscope_y", 0, -6 * third},
    {"saveGyroscopeValues", "readGyroscopeZ", "gyroscope_z", 1.1459155902616465, 7 * third},
    {"saveMagneticFieldValues", "readMagneticFieldX", "magnetic_field_x", 0, 8.5},
    {"saveMagneticFieldValues", "readMagneticFieldY", "magnetic_field_y", 5.95, 9.5},
    {"saveMagneticFieldValues", "readMagneticFieldZ", "magnetic_field_z", -48.76, -10 * third},
    {"saveMagnetometerValues", "readMagnetometerX", "magnetometer_x", 4.3e-5, 1.1e-5},
    {"saveMagnetometerValues", "readMagnetometerY", "magnetometer_y", 0, 1e-300},
    {"saveMagnetometerValues", "readMagnetometerZ", "magnetometer_z", 0, -1.3e-5},
    {"saveMagnetometerCalibLevel", "readMagnetometerCalibLevel", "magnetometer_calib_level", 0, 3},
    {"saveProximitySensorReflectanceValue", "readProximitySensorReflectanceValue",
     "proximity_reflectance", 5, 10},
    {"saveTapSensorValue", "readTapSensorValue", "tap", -1, 6},
    {"saveGpsValues", "readGpsLatitude", "gps_latitude", 0, -60.123456789},
    {"saveGpsValues", "readGpsLongitude", "gps_longitude", 0, 179.99999999999997},
    {"saveGpsValues", "readGpsAltitude", "gps_altitude", 0, 16 * third},
    {"save3DModelRotationValues", "read3DModelRotationX", "model_rotation_x", 0, 17.5},
    {"save3DModelRotationValues", "read3DModelRotationY", "model_rotation_y", 0, 18.5},
    {"save3DModelRotationValues", "read3DModelRotationZ", "model_rotation_z", 0, 19.5},
    {"save3DModelPositionValues", "read3DModelPositionX", "model_position_x", 0, 20.5},
    {"save3DModelPositionValues", "read3DModelPositionY", "model_position_y", 0, 21.5},
    {"save3DModelPositionValues", "read3DModelPositionZ", "model_position_z", 0, 22.5},
    {"saveDoNotShowAgainResetSensorsDialog", "readDoNotShowAgainResetSensorsDialog",
     "do_not_show_again_reset_sensors_dialog", 0, 1},
};

/// Calls a function of the settings, as a page does. Returns NaN if there is no such function.
static double call(const char *function, const QJSValueList &arguments = {})
{
    QJSEngine engine;
    const QJSValue settings = engine.newQObject(new SettingsManager);
    return settings.property(QString::fromLatin1(function))
        .callWithInstance(settings, arguments)
        .toNumber();
}

static void saveEverything()
{
    QMap<QByteArrayView, QJSValueList> calls;
    for (const Entry &entry : entries)
        calls[entry.save] << entry.saved;
    for (const auto &[function, arguments] : calls.asKeyValueRange())
        call(function.data(), arguments);
    call("saveGpsAltitude", {qQNaN()}); // not saved
}

class SettingsManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshSettingsGiveDefaults()
    {
        const TestSupport::IdeSettings settings;
        for (const Entry &entry : entries)
            QVERIFY2(call(entry.read) == entry.fresh, entry.read);
    }

    void whatIsSavedComesBackExactly()
    {
        TestSupport::IdeSettings settings;
        saveEverything();
        settings.reopen();
        for (const Entry &entry : entries)
            QVERIFY2(call(entry.read) == entry.saved, entry.read);
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
            // every text reads as true, so only an empty value is junk for a flag
            const bool isFlag = QByteArray(entry.key).startsWith("do_not");
            file.write(QByteArray(entry.key) + (isFlag ? "=\n" : "=12abc\n"));
        }
        file.close();
        settings.reopen();
        for (const Entry &entry : entries)
            QVERIFY2(call(entry.read) == 0, entry.read);
    }
};

QTEST_GUILESS_MAIN(SettingsManagerTest)

#include "tst_settingsmanager.moc"
