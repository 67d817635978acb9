import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml"

import "qrc:/emulationmanagement/js/colors.js" as Colors

import "find.js" as Find

Item {
    id: root

    width: 1100
    height: 600

    Component {
        id: component

        EmulationManagementView {}
    }

    TestCase {
        id: test

        readonly property var titles: [
            "Sensors Management", "Sensors Values", "Orientation Management", "GPS Management",
            "Camera Management",
        ]
        readonly property string warning: "The sensors values will be reset using the smartphone "
            + "3D-model position. Do you want to continue?"
        readonly property int ok: 0x400 // QMessageBox::Ok
        readonly property int cancel: 0x400000 // QMessageBox::Cancel
        property EmulationManagementView view

        name: "EmulationManagementView"
        when: windowShown

        function init() {
            failOnWarning(/.*/);
            host.reset();
            sensorsEmulationManager.setSensorEnabled("magnetometer", false); // as at start-up
            view = createTemporaryObject(component, root);
        }

        function button(title: string): PageButton {
            return Find.find(view, item => item instanceof PageButton && item.text === title);
        }

        // The title of the only page that is shown and whose button is marked.
        function shownPage(): string {
            const shown = titles.filter((title, index) => view.pagesIds[index].active);
            const visible = titles.filter((title, index) => view.pagesIds[index].visible);
            const marked = titles.filter(title => button(title).active);
            compare(shown.length, 1);
            compare(visible, shown);
            compare(marked, shown);
            return shown[0];
        }

        function test_pages() {
            compare(shownPage(), "Sensors Values");
            for (const title of [...titles, ...[...titles].reverse()]) {
                mouseClick(button(title));
                compare(shownPage(), title);
                mouseClick(button(title));
                compare(shownPage(), title);
            }
            compare(host.questions, []);
            verify(Qt.colorEqual(view.color, themeBackgroundColorNormal));
        }

        function test_warning_data(): var {
            const target = "Orientation Management";
            return [
                {tag: "asked without a change", target, asked: false, left: true},
                {tag: "asked before another page", changed: true, target: "GPS Management",
                 asked: false, left: true},
                {tag: "asked on another page", changed: true, by: "Camera Management", target,
                 asked: false, left: true},
                {tag: "asked against the user's wish", changed: true, silenced: true, target,
                 asked: false, left: true, saved: true},
                {tag: "left before the answer", changed: true, target, asked: true, left: false},
                {tag: "left after a refusal", changed: true, target, answer: cancel, ticked: true,
                 asked: true, left: false},
                {tag: "stayed after consent", changed: true, target, answer: ok, asked: true,
                 left: true},
                {tag: "forgot the tick", changed: true, target, answer: ok, ticked: true,
                 asked: true, left: true, saved: true},
            ];
        }

        function test_warning(row: var) {
            const settings = Qt.createQmlObject("import org.plova 1.0; SettingsManager {}", view);
            if (row.silenced)
                settings.saveDoNotShowAgainResetSensorsDialog(true);
            host.answer = row.answer ?? 0;
            host.doNotShowAgain = row.ticked ?? false;
            if (row.changed)
                sensorsEmulationManager.setGyroscopeX(1);
            if (row.by)
                mouseClick(button(row.by));
            mouseClick(button(row.target));
            compare(shownPage(), row.left ? row.target : "Sensors Values");
            compare(host.questions, row.asked ? [warning] : []);
            compare(settings.readDoNotShowAgainResetSensorsDialog(), row.saved ?? false);
        }

        function test_edgesAreVisible_data(): var {
            return [
                {tag: "light-2024", background: "#fcfcfc", highlight: "#cdcdcd"},
                {tag: "dark-2024", background: "#1f1f1f", highlight: "#3f3f3f"},
                {tag: "flat-light", background: "#ffffff", highlight: "#a5cdff"},
                {tag: "flat-dark", background: "#2e2f30", highlight: "#1d545c"},
            ];
        }

        function test_edgesAreVisible(row: var) {
            view.color = row.background;
            waitForRendering(view);
            verify(Colors.contrast(view.palette.highlight, view.color) >= 3);
            const image = grabImage(view);
            const sample = {GroupBox: item => item instanceof GroupBox ? item.background : null,
                            TextField: item => item instanceof TextField ? item : null,
                            ComboBox: item => item instanceof ComboBox ? item : null,
                            Button: item => item.text === "Reset values" ? item : null};
            for (const [name, itemOf] of Object.entries(sample)) {
                const item = itemOf(Find.find(view, item => item.visible && itemOf(item)));
                const place = item.mapToItem(view, 0, item.height / 2);
                // an item may begin between two pixels
                const edge = [-1, 0, 1].map(x => image.pixel(Math.floor(place.x) + x,
                                                             Math.floor(place.y)));
                verify(edge.some(color => Colors.contrast(color, view.color) >= 3), name + edge);
            }
            const active = button("Sensors Values");
            active.highlightColor = row.highlight;
            verify(Colors.contrast(active.contentItem.color, active.highlightColor) >= 4.5);
        }

        function focusStops(item: Item): var {
            if (!item.visible || !item.enabled)
                return [];
            const stops = item.activeFocusOnTab ? [item] : [];
            return stops.concat(...Array.from(item.children).map(child => focusStops(child)));
        }

        // The value that a screen reader is to speak.
        function spokenValue(item: Item): string {
            if (item instanceof Slider)
                return `${item.value} of ${item.from} to ${item.to}`;
            if (item instanceof PageButton)
                return item.active ? "selected" : "not selected";
            if (item instanceof ComboBox)
                return item.displayText;
            if (item instanceof TableView)
                return item.rows > 0 ? "0, 00:00:00.0, 0.0000000, 0.0000000, 0.00" : "";
            return host.accessibleValue(item); // of Qt
        }

        function test_keyboardAndScreenReader_data(): var {
            return [...titles.map(title => ({tag: title, title, points: 3})),
                    {tag: "GPS Management without a track", title: "GPS Management", points: 0}];
        }

        // The Tab key reaches each control of a page, and a screen reader has its name and value.
        function test_keyboardAndScreenReader(row: var) {
            const title = row.title;
            mouseClick(button(title));
            if (title === "GPS Management") {
                host.fillTrack(view.pagesIds[3].trackModel, row.points, 1000);
                view.pagesIds[3].player.currentRow = 0;
                verify(Find.find(view.pagesIds[3], item => host.accessibleName(item)
                                                           === "Latitude 0.0000000"));
            }
            button(title).forceActiveFocus(Qt.TabFocusReason);
            const missed = new Set(focusStops(view.pagesIds[titles.indexOf(title)]));
            verify(missed.size > 1);
            let focused = null;
            for (let i = 0; i < 100 && missed.size > 0; ++i) {
                focused = view.Window.activeFocusItem;
                verify(host.accessibleName(focused) !== "", `${focused} after ${i} keys`);
                compare(host.accessibleValue(focused), spokenValue(focused));
                missed.delete(focused);
                keyClick(Qt.Key_Tab);
            }
            compare([...missed], []);
            verify(view.Window.activeFocusItem !== focused, `${focused} kept the focus`);
        }

        // Each field refuses the key that would take its number out of the range.
        function test_coordinates() {
            mouseClick(button("GPS Management"));
            const limits = {Latitude: [-90, 90], Longitude: [-180, 180], Altitude: [-1000, 10000]};
            for (const label in limits) {
                const field = Find.find(view.pagesIds[3], item => item instanceof TextField
                                                                  && item.Accessible.name === label);
                field.forceActiveFocus();
                for (const limit of limits[label]) {
                    keyClick(Qt.Key_A, Qt.ControlModifier);
                    for (const key of limit + ".1")
                        keyClick(key);
                    keyClick(Qt.Key_Return);
                    compare(gpsEmulationManager.currentPosition[label.toLowerCase()], limit);
                }
            }
        }

        function test_errorDialogFollowsMessages() {
            const dialog = view.errorDialog;
            host.receive(""); // not a message
            verify(!dialog.visible);
            host.receive("one");
            host.receive("two");
            compare(dialog.text, "two");
            keyClick(Qt.Key_Escape);
            tryCompare(dialog, "visible", false);
            host.receive("one"); // a call that is refused again and again
            verify(!dialog.visible);
            host.receive("three");
            tryCompare(dialog, "opened", true);
            keyClick(Qt.Key_Return);
            tryCompare(dialog, "visible", false);
            view.pagesIds[3].refuseTrack("four"); // not a message of the emulator
            compare(dialog.text, "four");
            for (let i = 0; i < 100; ++i)
                host.receive("burst " + i);
            // all messages of the last second made each one slower
            verify(dialog.lastTimes.length <= dialog.maximumTimes + 1);
        }
    }
}
