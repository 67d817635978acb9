pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// Two small diagrams: the axes of the turned device's sensors, and the directions of gravity and of
// the magnetic field.
Grid {
    id: root

    required property list<real> rotationState // Euler angles in degrees
    required property var magneticField // in the world's axes

    // Wide enough for the words of the titles.
    readonly property real diagramSize: Math.max(66, 4.7 * metrics.height)
    readonly property list<var> axes: Logic.deviceAxes(rotationState)

    component Diagram: Column {
        default property alias arrows: space.data
        property alias title: title.text

        spacing: 2

        Item {
            id: space

            height: width
            width: root.diagramSize
        }

        Label {
            id: title

            horizontalAlignment: Text.AlignHCenter
            opacity: 0.7
            width: root.diagramSize
            wrapMode: Text.Wrap
        }
    }

    spacing: 8

    FontMetrics {
        id: metrics
    }

    Diagram {
        title: qsTr("Sensor axes")

        DirectionArrow {
            color: "#d03b3b"
            direction: root.axes[0]
            letter: "X"
        }

        DirectionArrow {
            color: "#2f8f46"
            direction: root.axes[1]
            letter: "Y"
        }

        DirectionArrow {
            color: "#3569d4"
            direction: root.axes[2]
            letter: "Z"
        }
    }

    Diagram {
        title: qsTr("Gravity g, field B")

        DirectionArrow {
            color: "#7a7f87"
            direction: Logic.gravityDirection
            letter: "g"
        }

        DirectionArrow {
            color: "#9a4fc4"
            direction: Logic.direction([root.magneticField.x, root.magneticField.y,
                                        root.magneticField.z])
            letter: "B"
        }
    }
}
