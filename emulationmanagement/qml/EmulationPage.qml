import QtQuick

// What the main view expects of a page. Only the active page is shown.
Item {
    property bool active: false
    // Controls that are made later take their palette from an item that had one when the IDE's
    // theme came; below none they would get the style's own.
    readonly property var idePalette: palette

    // Finishes the page's own work before another page is shown, then calls continuation.
    function exitPage(continuation: var) {
        continuation();
    }

    visible: active
}
