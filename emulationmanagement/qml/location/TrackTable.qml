pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

import "../../js/colors.js" as Colors
import "../../js/location/track-points.js" as TrackPoints

// The points of a track, one a row; the current row is marked.
ColumnLayout {
    id: root

    required property TrackModel trackModel
    readonly property int rowCount: trackModel.rowCount
    property int currentRow: -1
    // Whether the current row is scrolled to the middle. Otherwise it is only scrolled into view.
    property bool centred: false

    readonly property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color highlightedTextColor: Colors.readableOn(highlightColor, [
        palette.windowText, Qt.color("white"), Qt.color("black"),
    ])

    // Narrower columns would elide numbers.
    readonly property real comfortableWidth: 6 * (metrics.advanceWidth("-180.0000000") + 2 * padding)
    readonly property int padding: 4

    signal rowChosen(row: int)

    function showRow(row: int, alignment: int) {
        if (row >= 0 && row < rowCount)
            tableView.positionViewAtRow(row, alignment);
    }

    function chooseNeighbour(offset: int) {
        const row = currentRow + offset;
        if (row >= 0 && row < rowCount)
            rowChosen(row);
    }

    function cellText(column: int, display: string): string {
        return column === TrackModel.Time ? TrackPoints.millisToPointTime(Number(display)) : display;
    }

    function rowText(row: int): string {
        if (row < 0 || row >= rowCount)
            return "";
        const columns = Array.from({length: trackModel.columnCount()}, (_, column) => column);
        return columns.map(column => cellText(column, trackModel.data(trackModel.index(row, column))))
            .join(", ");
    }

    // The last column takes the rest of the width.
    function columnWidth(column: int): real {
        const sixth = tableView.width / 6;
        if (column === 0)
            return 70;
        return column === TrackModel.Altitude ? Math.max(sixth, tableView.width - 70 - 3 * sixth)
                                              : sixth;
    }

    spacing: 0

    // The table scrolls also when nothing is played, so that the first row is visible after a stop.
    // The call is delayed because the row may change several times between two frames.
    onCurrentRowChanged: Qt.callLater(showRow, currentRow,
                                      centred ? TableView.AlignVCenter : TableView.Contain)

    FontMetrics {
        id: metrics
    }

    Connections {
        target: root.trackModel

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
                padding: root.padding
                text: modelData
                width: root.columnWidth(index)
            }
        }
    }

    TableView {
        id: tableView

        Accessible.description: root.rowText(root.currentRow)
        Accessible.name: qsTr("Track points")
        Layout.fillHeight: true
        Layout.fillWidth: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        columnWidthProvider: column => root.columnWidth(column)
        // The view's own key navigation stops at each cell, and takes the Tab key of an empty table.
        keyNavigationEnabled: false
        model: root.trackModel

        delegate: Rectangle {
            id: cell

            required property string display
            required property int column
            required property int row

            readonly property bool highlighted: row === root.currentRow

            color: highlighted ? root.highlightColor : "transparent"
            implicitHeight: text.implicitHeight

            Label {
                id: text

                anchors.fill: parent
                color: cell.highlighted ? root.highlightedTextColor : palette.windowText
                elide: Text.ElideRight
                padding: root.padding
                text: root.cellText(cell.column, cell.display)
            }
        }

        Keys.onDownPressed: root.chooseNeighbour(1)
        Keys.onUpPressed: root.chooseNeighbour(-1)
        ScrollBar.vertical: ScrollBar {}

        onWidthChanged: forceLayout()

        Rectangle {
            anchors.fill: parent
            border.color: palette.highlight
            color: "transparent"
            parent: tableView // not the content, which scrolls
            visible: tableView.activeFocus
        }

        TapHandler {
            onTapped: point => {
                tableView.forceActiveFocus(Qt.MouseFocusReason);
                const row = tableView.cellAtPosition(point.position).y;
                if (row >= 0)
                    root.rowChosen(row);
            }
        }
    }
}
