#include <sensors/compassmodel.h>
#include <sensors/orientationmodel.h>

#include <QMatrix3x3>
#include <QQuaternion>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <cmath>
#include <numbers>
#include <random>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

using Vector = std::array<double, 3>;

static double radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

class SensorModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The azimuth must be the heading in any attitude and for any dip of the field. The z axis of
    // the magnetometer points into the screen, that of the accelerometer out of it.
    void azimuthIsTheHeadingInAnyAttitude()
    {
        constexpr int readings = 300'000;
        constexpr double gravity = 1e8; // huge, so that rounding to integers does not matter
        std::mt19937 random(1);
        const auto uniform = [&](double least, double most) {
            return std::uniform_real_distribution(least, most)(random);
        };
        for (int reading = 0; reading < readings; ++reading) {
            const double heading = uniform(0, 360);
            const double dip = radians(uniform(-75, 75));
            // the device's axes in east, north and up: turned about z, then x, then y
            const QMatrix3x3 attitude
                = (QQuaternion::fromAxisAndAngle(0, 0, 1, float(-heading))
                   * QQuaternion::fromAxisAndAngle(1, 0, 0, float(uniform(-85, 85)))
                   * QQuaternion::fromAxisAndAngle(0, 1, 0, float(uniform(-180, 180))))
                      .toRotationMatrix();
            const auto acceleration
                = [&](int axis) { return int(std::lround(attitude(2, axis) * gravity)); };
            const auto flux = [&](int axis) {
                return 5e-5
                       * (attitude(1, axis) * std::cos(dip) - attitude(2, axis) * std::sin(dip));
            };
            const int azimuth = CompassModel::calculateAzimuth(
                acceleration(0), acceleration(1), acceleration(2), flux(0), flux(1), -flux(2));
            QCOMPARE_GE(azimuth, 0);
            QCOMPARE_LT(azimuth, 360);
            QCOMPARE_LE(std::abs(std::remainder(azimuth - heading, 360)), 0.51);
        }
    }

    void orientation_data()
    {
        using enum QOrientationReading::Orientation;
        using Orientation = QOrientationReading::Orientation;
        QTest::addColumn<QList<Vector>>("readings");
        QTest::addColumn<Orientation>("orientation"); // after the last reading
        const auto add = [](const char *name, const QList<Vector> &readings, Orientation result) {
            QTest::newRow(name) << readings << result;
        };
        const auto side = [](double degrees) -> Vector {
            return {1000 * std::sin(radians(degrees)), 0, 1000 * std::cos(radians(degrees))};
        };
        const auto top = [](double degrees) -> Vector {
            return {0, 1000 * std::sin(radians(degrees)), 1000 * std::cos(radians(degrees))};
        };
        const Vector back{0, 0, 1000}, face{0, 0, -1000}, none{0, 0, 0};

        add("right side up too early", {side(25.4)}, FaceUp);
        add("right side up too late", {side(25.6)}, RightUp);
        add("left side up too late", {side(-25.6)}, LeftUp);
        add("top up too early", {top(20.4)}, FaceUp);
        add("top up too late", {top(20.6)}, TopUp);
        add("top down too late", {top(-20.6)}, TopDown);
        add("top goes before side", {{600, 700, 100}}, RightUp);
        add("face up too late", {face, {0, 0, 300}}, FaceUp);
        add("face down too late", {back, {0, 0, -300}}, FaceDown);
        add("face up too early", {face, {0, 0, 299}}, FaceDown);
        add("face down too early", {back, {0, 0, -299}}, FaceUp);
        add("tilted device counts as on its face", {face, {1000, 0, -400}, none}, FaceUp);
        add("slow tilt forgets the face", {face, {1000, 0, -200}, none}, FaceDown);
    }

    void orientation()
    {
        QFETCH(const QList<Vector>, readings);
        OrientationModel model;
        QSignalSpy changed(&model, &OrientationModel::orientationChanged);
        for (const Vector &reading : readings)
            model.setOrientation(reading[0], reading[1], reading[2]);
        QTEST(model.orientation(), "orientation");
        QCOMPARE(changed.size(), readings.size());
    }
};

QTEST_GUILESS_MAIN(SensorModelsTest)

#include "tst_sensormodels.moc"
