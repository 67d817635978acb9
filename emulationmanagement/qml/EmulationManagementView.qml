pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs

import org.plova 1.0

import "shared"
import "../js/colors.js" as Colors
import "../js/sensor-controls-view-logic.js" as Logic

Rectangle {
    id: root

    readonly property list<EmulationPage> pagesIds: [
        sensorsManagementPage,
        sensorsValuesPage,
        smartphoneModelPage,
        gpsManagementPage,
        cameraManagementPage,
    ]
    // The sensor that "Apply" switched last. Empty again once the emulator has refused a call.
    property string lastChangedSensorName: ""
    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified
    readonly property color separatorColor: themeSeparatorColor // qmllint disable unqualified
    // Reading the window's palette creates it. It follows the IDE's theme, and controls and dialogs
    // that are made later inherit it; otherwise they would have the palette of the style.
    readonly property Palette windowPalette: Window.window?.palette ?? null
    // The style marks the focus, and the filled part of a slider, with the palette's highlight. That
    // of some themes has nearly the colour of the background.
    readonly property color accentColor: Colors.withContrast(windowPalette?.accent ?? color, color,
                                                             3.5)

    property alias errorDialog: errorDialog
    property alias messageDialog: messageDialog

    function switchVisiblePage(page: EmulationPage) {
        const current = Array.from(pagesIds).filter(candidate => candidate.active).pop();
        current.exitPage(() => {
            for (const other of pagesIds) {
                if (other !== current)
                    other.active = false;
            }
            if (current === sensorsValuesPage && page === smartphoneModelPage
                    && sensorsValuesPage.modelSensorChanged
                    && !settingsManager.readDoNotShowAgainResetSensorsDialog()) {
                warningDialog.callback = () => changeActivePage(current, page);
                warningDialog.show();
            } else {
                changeActivePage(current, page);
            }
        });
    }

    function changeActivePage(current: EmulationPage, page: EmulationPage) {
        current.active = false;
        page.active = true;
    }

    width: 1100
    height: 600
    color: themeBackgroundColorNormal // qmllint disable unqualified
    palette.highlight: accentColor
    palette.highlightedText: Colors.readableOn(accentColor, [Qt.color("white"), Qt.color("black")])

    Window.onVisibilityChanged: {
        if (Window.visibility !== Window.Hidden)
            return;
        errorDialog.close();
        messageDialog.close();
    }

    ErrorMessageDialog {
        id: errorDialog

        palette: root.palette
    }

    MessageDialog {
        id: messageDialog

        buttons: MessageDialog.Ok
    }

    SettingsManager {
        id: settingsManager
    }

    WarningDialog {
        id: warningDialog

        property var callback: null // a function

        text: qsTr("The sensors values will be reset using the smartphone 3D-model position. Do you want to continue?")
        withDoNotShowAgainCheckBox: true

        onAccepted: doNotShowAgain => {
            callback?.(); // qmllint disable use-proper-function
            settingsManager.saveDoNotShowAgainResetSensorsDialog(doNotShowAgain);
        }
    }

    Connections {
        target: root.sensorsManager

        function onReplyFromEmulatorReceived(reply: string) {
            Logic.replyFromEmulatorReceivedHandler(reply, errorDialog);
        }
    }

    component SwitchButton: PageButton {
        required property EmulationPage page

        active: page.visible
        textScale: buttonsColumn.textScale

        onClicked: root.switchVisiblePage(page)
    }

    Column {
        id: buttonsColumn

        // All texts have one size. A text that does not fit even when it is small is elided.
        readonly property real textScale: {
            const buttons = Array.from(children).filter(child => child instanceof PageButton);
            const room = buttons.map(button => button.availableWidth / button.textWidth);
            return Math.max(0.65, Math.min(1, ...room));
        }

        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        width: 180

        SwitchButton {
            page: sensorsManagementPage
            text: qsTr("Sensors Management")
        }

        SwitchButton {
            page: sensorsValuesPage
            text: qsTr("Sensors Values")
        }

        SwitchButton {
            page: smartphoneModelPage
            text: qsTr("Orientation Management")
        }

        SwitchButton {
            page: gpsManagementPage
            text: qsTr("GPS Management")
        }

        SwitchButton {
            page: cameraManagementPage
            text: qsTr("Camera Management")
        }
    }

    Rectangle {
        id: buttonsColumnSeparator

        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.left: buttonsColumn.right
        width: 1
        color: root.separatorColor
    }

    // Here no page loses room to it.
    Text {
        anchors.bottom: parent.bottom
        anchors.left: buttonsColumn.left
        anchors.right: buttonsColumn.right
        color: root.palette.windowText
        padding: 12
        text: qsTr("A recording is playing. This window sends its values again when the recording ends.")
        visible: root.sensorsManager.suspended
        wrapMode: Text.Wrap
    }

    Item {
        id: pagesArea

        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.left: buttonsColumnSeparator.right
        anchors.right: parent.right
        // The Fusion style draws edges in the colour of the window, made darker by this factor.
        palette.window: Qt.lighter(Colors.withContrast(root.color, root.color, 3.5), 1.4)

        SensorsManagementPage {
            id: sensorsManagementPage

            anchors.fill: parent

            onSensorSwitched: sensorName => root.lastChangedSensorName = sensorName
        }

        SensorsValuesPage {
            id: sensorsValuesPage

            anchors.fill: parent
            active: true
        }

        SmartphoneModelPage {
            id: smartphoneModelPage

            anchors.fill: parent
        }

        GpsManagementPage {
            id: gpsManagementPage

            anchors.fill: parent
            errorDialog: root.errorDialog
            messageDialog: root.messageDialog
        }

        CameraManagementPage {
            id: cameraManagementPage

            anchors.fill: parent
            errorDialog: root.errorDialog
        }
    }
}
