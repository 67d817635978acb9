pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The points of a track, one a row; the current row is marked.
ColumnLayout {
    id: root

    required property TrackModel track
    readonly property int rowCount: track.rowCount

    readonly property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color highlightedTextColor: highlightColor.hslLightness > 0.6 ? "black"
                                                                                    : "white"

    function showRow(index: int) {
        tableView.positionViewAtRow(index, TableView.Contain);
    }

    function columnWidth(column: int): real {
        return column === 0 ? 70 : tableView.width / 6;
    }

    spacing: 0

    Connections {
        target: root.track.tableModel

        function onRowsChanged() {
            tableView.positionViewAtRow(0, TableView.AlignTop);
        }
    }

    Row {
        Layout.fillWidth: true

        Repeater {
            model: [qsTr("No."), qsTr("Time"), qsTr("Latitude"), qsTr("Longitude"),
                    qsTr("Altitude")]

            delegate: Label {
                required property int index
                required property string modelData

                elide: Text.ElideRight
                font.bold: true
                padding: 4
                text: modelData
                width: root.columnWidth(index)
            }
        }
    }

    TableView {
        id: tableView

        Accessible.name: qsTr("Track points")
        Layout.fillHeight: true
        Layout.fillWidth: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        columnWidthProvider: column => root.columnWidth(column)
        editTriggers: TableView.NoEditTriggers
        model: root.track.tableModel
        selectionBehavior: TableView.SelectRows
        selectionModel: root.track.selection

        delegate: Rectangle {
            id: cell

            required property var display
            required property int row

            readonly property bool highlighted: row === tableView.currentRow

            color: highlighted ? root.highlightColor : "transparent"
            implicitHeight: text.implicitHeight

            Label {
                id: text

                anchors.fill: parent
                color: cell.highlighted ? root.highlightedTextColor : palette.windowText
                elide: Text.ElideRight
                padding: 4
                text: cell.display
            }
        }

        ScrollBar.vertical: ScrollBar {}

        onWidthChanged: forceLayout()
    }
}
