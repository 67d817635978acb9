import QtQuick
import QtQuick3D
import QtTest

import org.plova 1.0

import "qrc:/emulationmanagement/js/devicemodel/smartphone-model-page-logic.js" as Logic
import "qrc:/emulationmanagement/qml"
import "qrc:/emulationmanagement/qml/devicemodel"

import "quaternions.js" as Quaternions

Item {
    id: root

    DeviceModelReader {
        id: reader
    }

    Component {
        id: component

        SmartphoneModelPage {
            id: page

            property alias device: device

            DrawnDevice {
                id: device

                attitude: page.motion.rotation
                isBox: true
                model: reader
            }
        }
    }

    TestCase {
        name: "DrawnDevice"

        // The matrix of the drawn node must say what the emulator gets. There are two differences: an
        // accelerometer measures what holds the device against gravity, so it shows the direction
        // upwards, and its values have no fractions of a thousandth of g.
        function test_readings() {
            host.reset();
            const page = createTemporaryObject(component, root);
            page.active = true;
            const {accelerometer, magnetometer} = sensorsEmulationManager;
            Quaternions.forEachAttitude(2000, (rotation, field) => {
                sensorsEmulationManager.setMagneticFieldValues(...field);
                page.rotate(rotation);
                const toDevice = page.device.sceneTransform.transposed();
                const up = toDevice.times(Qt.vector3d(0, 1000, 0));
                const seen = toDevice.times(Qt.vector3d(...field));
                for (const axis of ["x", "y", "z"]) {
                    fuzzyCompare(accelerometer[axis], up[axis], 1.001);
                    verify(Math.abs(accelerometer[axis]) < Math.abs(up[axis]) + 0.001);
                    fuzzyCompare(magnetometer[axis] * 1e6, seen[axis], 1e-3);
                }
                Logic.deviceAxes(rotation).forEach((axis, i) => {
                    const column = toDevice.row(i);
                    axis.forEach((part, j) => fuzzyCompare(part, [column.x, column.y, column.z][j],
                                                           1e-6));
                });
            });
        }
    }
}
