import QtQuick
import QtQuick.Shapes

import org.plova 1.0

// The line of a track on a map without a background, with a dot at the current row.
Item {
    id: root

    required property TrackModel trackModel
    property int currentRow: -1

    readonly property size size: trackModel.outlineSize
    // Pixels in one unit of the outline.
    readonly property real unit: {
        const smallest = 1e-6; // for a track that stays at one place
        return Math.max(0, Math.min((width - dot.width) / Math.max(size.width, smallest),
                                    (height - dot.width) / Math.max(size.height, smallest)));
    }
    readonly property point current: trackModel.placeOf(currentRow)

    Accessible.name: qsTr("Shape of the track")
    Accessible.role: Accessible.Graphic

    Item {
        anchors.centerIn: parent
        height: root.size.height * root.unit
        width: root.size.width * root.unit

        Shape {
            anchors.fill: parent
            preferredRendererType: Shape.CurveRenderer // which smooths edges

            ShapePath {
                fillColor: "transparent"
                joinStyle: ShapePath.RoundJoin
                scale: Qt.size(root.unit, root.unit)
                strokeColor: root.palette.windowText
                strokeWidth: 1.5

                PathPolyline {
                    path: root.trackModel.outline
                }
            }
        }

        Rectangle {
            id: dot

            border.color: root.palette.base
            color: root.palette.highlight
            height: width
            radius: width / 2
            visible: root.currentRow >= 0
            width: 12
            x: root.current.x * root.unit - radius
            y: root.current.y * root.unit - radius
        }
    }
}
