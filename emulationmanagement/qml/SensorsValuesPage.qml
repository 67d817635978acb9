pragma ComponentBehavior: Bound

import QtQuick

import org.plova 1.0

import "shared"

EmulationPage {
    id: root

    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified
    // True when a sensor that the device model page also drives was changed since this page was
    // shown.
    property bool modelSensorChanged: false

    contentFile: Qt.resolvedUrl("sensors/SensorsValuesContent.qml")

    onActiveChanged: {
        if (active)
            modelSensorChanged = false;
    }

    // The casts tell qmllint that the models are objects: it cannot follow their base, a template.
    component ModelWatch: Connections {
        function onXChanged() {
            root.modelSensorChanged = true;
        }
        function onYChanged() {
            root.modelSensorChanged = true;
        }
        function onZChanged() {
            root.modelSensorChanged = true;
        }
    }

    ModelWatch {
        target: root.sensorsManager.accelerometer as QtObject
    }

    ModelWatch {
        target: root.sensorsManager.magnetometer as QtObject
    }

    ModelWatch {
        target: root.sensorsManager.magneticField as QtObject
    }

    ModelWatch {
        target: root.sensorsManager.gyroscope as QtObject
    }

    Connections {
        target: root.sensorsManager

        function onSensorsInitialized() {
            root.modelSensorChanged = false;
        }
    }
}
