pragma ComponentBehavior: Bound
pragma Translator: GpsManagementPage

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

import ".."
import "../shared"

// The position and the track.
PageScrollView {
    id: root

    required property GpsManagementPage page
    readonly property TrackPlayer player: page.player
    readonly property TrackModel trackModel: page.trackModel

    ColumnLayout {
        width: Math.max(root.availableWidth, implicitWidth)
        height: Math.max(root.availableHeight, implicitHeight)
        spacing: 8

        CurrentPosition {
            Layout.fillWidth: true
            gpsManager: root.page.gpsManager
        }

        CoordinateControls {
            Layout.fillWidth: true
            altitudeDecimals: root.page.altRoundingSize
            altitudeMaxValue: root.page.altitudeMaxValue
            altitudeMinValue: root.page.altitudeMinValue
            coordinateDecimals: root.page.latLongRoundingSize
            gpsManager: root.page.gpsManager
            latitudeMaxValue: root.page.latitudeMaxValue
            latitudeMinValue: root.page.latitudeMinValue
            longitudeMaxValue: root.page.longitudeMaxValue
            longitudeMinValue: root.page.longitudeMinValue

            onPositionSubmitted: (latitude, longitude, altitude) => {
                if (root.player.playing)
                    root.player.pause();
                root.page.gpsManager.setPosition(latitude, longitude, altitude);
            }
        }

        GroupBox {
            Layout.fillHeight: true
            Layout.fillWidth: true
            title: qsTr("Track")

            ColumnLayout {
                anchors.fill: parent
                spacing: 6

                TrackFileRow {
                    Layout.fillWidth: true
                    fileUrl: root.page.nmeaFileUrl
                    reader: root.page.trackReader

                    onOpenClicked: root.page.fileDialog.open()
                }

                TrackProgress {
                    id: progress

                    Layout.fillWidth: true
                    currentIndex: root.page.gpsManager.currentPositionIndex
                    enabled: root.trackModel.rowCount > 0
                    rowCount: root.trackModel.rowCount

                    onMoved: index => {
                        root.player.currentRow = index;
                        root.page.gpsManager.goToPositionOnTrack(index);
                    }
                    onPressedChanged: {
                        if (pressed)
                            root.player.hold();
                        else
                            root.player.release();
                    }
                }

                TrackControls {
                    Layout.fillWidth: true
                    enabled: root.trackModel.rowCount > 0
                    gpsManager: root.page.gpsManager
                    onlyDefaultInterval: root.page.onlyDefaultInterval
                    playing: root.player.playing
                    stopped: root.player.stopped

                    onPauseClicked: root.player.pause()
                    onPlayClicked: root.player.start()
                    onStopClicked: root.player.stop()
                }

                RowLayout {
                    // A narrow window has room for the table only. Does not depend on
                    // shape.visible, which also changes with the page: the layout would then give
                    // the shape more width than there is.
                    readonly property bool hasShape: width >= table.comfortableWidth + 180
                                                     && root.trackModel.rowCount > 0

                    Layout.fillHeight: true
                    Layout.fillWidth: true
                    Layout.minimumHeight: 60
                    spacing: 12

                    TrackTable {
                        id: table

                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        Layout.horizontalStretchFactor: 3
                        Layout.minimumWidth: parent.hasShape ? comfortableWidth : 0
                        Layout.preferredWidth: 1
                        centred: root.player.playing || progress.pressed
                        currentRow: root.player.currentRow
                        trackModel: root.trackModel

                        onRowChosen: row => root.player.chooseRow(row)
                    }

                    TrackShape {
                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        Layout.horizontalStretchFactor: 2
                        Layout.preferredWidth: 1
                        currentRow: root.player.currentRow
                        trackModel: root.trackModel
                        visible: parent.hasShape
                    }
                }
            }
        }
    }
}
