pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Qt.labs.qmlmodels

// The points of a track, one a row; the current row is marked.
ColumnLayout {
    id: root

    property alias rows: tableModel.rows
    readonly property alias rowCount: tableModel.rowCount
    readonly property alias currentRow: tableView.currentRow

    readonly property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color highlightedTextColor: highlightColor.hslLightness > 0.6 ? "black"
                                                                                    : "white"

    function row(index: int): var {
        return tableModel.getRow(index);
    }

    // Shows other rows, none of them current.
    function setRows(newRows: var) {
        selection.clearCurrentIndex();
        tableModel.rows = newRows;
        tableView.positionViewAtRow(0, TableView.AlignTop);
    }

    function selectRow(index: int) {
        selection.setCurrentIndex(tableModel.index(index, 0), ItemSelectionModel.NoUpdate);
    }

    function showRow(index: int) {
        tableView.positionViewAtRow(index, TableView.Contain);
    }

    function columnWidth(column: int): real {
        return column === 0 ? 70 : tableView.width / 6;
    }

    spacing: 0

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
        model: TableModel {
            id: tableModel

            TableModelColumn {
                display: "No."
            }
            TableModelColumn {
                display: "Time"
            }
            TableModelColumn {
                display: "Latitude"
            }
            TableModelColumn {
                display: "Longitude"
            }
            TableModelColumn {
                display: "Altitude"
            }
        }
        selectionBehavior: TableView.SelectRows
        selectionModel: ItemSelectionModel {
            id: selection

            model: tableModel
        }

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
